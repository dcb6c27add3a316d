// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Addresses in Google's Cloud Storage: the JSON interface, and signed URLs of version 2. Pure functions.
// Hosts are scheme, name and port; object names are plain text.

/// A bucket, and the host of the interface to it.
struct Bucket
{
    QString host;
    QByteArray name;
};

/// Where an object is downloaded from.
QString downloadUrl(const Bucket& bucket, const QString& object);

/// Where an object is uploaded to by a plain body. `isPublic` lets everybody read it. With `ifGeneration` the
/// upload counts only when the object has this generation, 0 when there is none.
QString uploadUrl(const Bucket& bucket, const QString& object, bool isPublic,
                  std::optional<qint64> ifGeneration = std::nullopt);

/// A page of the list of objects whose names begin with `prefix`; the first one for an empty `pageToken`.
/// With `delimiter` names that have it behind the prefix are rolled up.
QString listUrl(const Bucket& bucket, const QString& prefix, const QString& delimiter,
                const QString& pageToken = {});

/// What a signed URL signs: a GET of the object until `expires`, in seconds since 1970.
QByteArray textToSign(const QByteArray& bucket, const QString& object, qint64 expires);

/// The URL that `account` has signed; `signature` is in base64.
QString signedUrl(const Bucket& bucket, const QString& object, const QString& account, qint64 expires,
                  const QByteArray& signature);
