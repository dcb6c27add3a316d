// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/listing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Empty for a name of nothing but "/".
QString lastPart(const QString& name)
{
    const QStringList parts = name.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    return parts.isEmpty() ? QString() : parts.constLast();
}

void appendUnlessEmpty(QStringList& list, const QString& text)
{
    if (!text.isEmpty())
        list.append(text);
}

} // namespace

std::optional<ListingPage> parseListingPage(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    ListingPage page;
    page.nextPageToken = document.object().value("nextPageToken").toString();
    const QJsonArray prefixes = document.object().value("prefixes").toArray();
    for (const QJsonValue& prefix : prefixes)
        appendUnlessEmpty(page.listing.prefixes, prefix.toString());
    const QJsonArray items = document.object().value("items").toArray();
    for (const QJsonValue& value : items) {
        const QJsonObject item = value.toObject();
        const QString name = item.value("name").toString();
        if (!name.isEmpty())
            page.listing.objects.append(
                {name, item.value("size").toString().toLongLong(), item.value("updated").toString()});
    }
    return page;
}

QStringList folderNames(const Listing& listing)
{
    QStringList names;
    for (const QString& prefix : listing.prefixes)
        appendUnlessEmpty(names, lastPart(prefix));
    return names;
}

QStringList fileNames(const Listing& listing, const QString& extension)
{
    QStringList names;
    for (const ListedObject& object : listing.objects) {
        const QString name = lastPart(object.name);
        if (name.contains(extension, Qt::CaseInsensitive))
            appendUnlessEmpty(names, name);
    }
    return names;
}
