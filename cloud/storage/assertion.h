// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// How a service account asks for an access token (JWT bearer grant, RFC 7523). Pure functions.

/// The signed assertion by which the account `issuer` asks `audience`, the URL that it is sent to, for the
/// right to read and write objects. `now` is in seconds since 1970; `rsaKey` as for signatureOf().
///
/// Its header and claims are in base64url with padding, its signature is in standard base64; times are text.
QByteArray assertion(const QString& issuer, const QString& audience, qint64 now, const QByteArray& rsaKey);

/// The form that brings an assertion.
QByteArray tokenRequest(const QByteArray& assertion);

/// A token and how many seconds it is valid.
struct AccessToken
{
    QByteArray text;
    int lifetime = 0;
};

/// Reads the answer to a token request; nothing unless it has both a token and a lifetime. A lifetime that is
/// no number is 0.
std::optional<AccessToken> parseTokenAnswer(const QByteArray& json);

/// Seconds since 1970 of a Date header (RFC 7231), for clocks that are not right; nothing when unreadable.
std::optional<qint64> parseHttpDate(const QByteArray& date);
