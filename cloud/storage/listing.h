// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// An object of the storage, as a list tells of it.
struct ListedObject
{
    QString name;     ///< the whole name
    qint64 bytes = 0; ///< size of its content
    QString updated;  ///< time of its last change (RFC 3339)
};

/// Objects, and what they are rolled up to where a delimiter was asked for.
struct Listing
{
    QVector<ListedObject> objects;
    QStringList prefixes;
};

/// A page of a list.
struct ListingPage
{
    Listing listing;
    QString nextPageToken; ///< empty on the last page
};

/// Reads a page; nothing when it is not JSON of an object. Entries of a wrong type are left out.
std::optional<ListingPage> parseListingPage(const QByteArray& json);

/// The last parts of the prefixes' names.
QStringList folderNames(const Listing& listing);

/// The last parts of the names of the objects that have `extension` anywhere in it, in any case.
QStringList fileNames(const Listing& listing, const QString& extension);
