// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/edits/sourceedits.h"

#include "qmldoc/edits/idedits.h"
#include "qmldoc/edits/objectedits.h"
#include "qmldoc/edits/propertyedits.h"

namespace {

QVariantMap asMap(const Change& change)
{
    QVariantList edits;
    for (size_t i = 0; i < change.edits.size(); ++i) {
        const SourceEdit& edit = change.edits[i];
        edits.append(QVariantMap{{QStringLiteral("beg"), edit.begin},
                                 {QStringLiteral("end"), edit.end},
                                 {QStringLiteral("text"), edit.text},
                                 {QStringLiteral("movedBeg"), edit.movedBegin},
                                 {QStringLiteral("movedEnd"), edit.movedEnd},
                                 {QStringLiteral("objects"), change.objects[i]}});
    }
    return {{QStringLiteral("refusal"), change.refusal},
            {QStringLiteral("edits"), edits},
            {QStringLiteral("records"), change.records}};
}

std::vector<int> offsets(const QVariantList& objects)
{
    std::vector<int> list;
    for (const QVariant& object : objects)
        list.push_back(object.toInt());
    return list;
}

} // namespace

QVariantMap SourceEdits::setProperties(const QString& source, int beg, int end,
                                       const QVariantList& values) const
{
    std::vector<PropertyValue> list;
    for (const QVariant& entry : values) {
        const QVariantMap value = entry.toMap();
        list.push_back({value[QStringLiteral("object")].toInt(), value[QStringLiteral("name")].toString(),
                        value[QStringLiteral("text")].toString()});
    }
    return asMap(::setProperties(Passage(source, beg, end), list));
}

QVariantMap SourceEdits::addObjects(const QString& source, int beg, int end, int parent, const QString& code,
                                    const QStringList& imports) const
{
    return asMap(::addObjects(Passage(source, beg, end), parent, code, imports));
}

QVariantMap SourceEdits::insertObject(const QString& source, int beg, int end, int parent, int before,
                                      const QString& code, const QStringList& imports) const
{
    return asMap(::insertObject(Passage(source, beg, end), parent, before, code, imports));
}

QVariantMap SourceEdits::removeObjects(const QString& source, int beg, int end,
                                       const QVariantList& objects) const
{
    return asMap(::removeObjects(Passage(source, beg, end), offsets(objects)));
}

QVariantMap SourceEdits::moveObjects(const QString& source, int beg, int end, const QVariantList& objects,
                                     int parent, int before) const
{
    return asMap(::moveObjects(Passage(source, beg, end), offsets(objects), parent, before));
}

QVariantMap SourceEdits::replaceObject(const QString& source, int beg, int end, int object,
                                       const QString& code) const
{
    return asMap(::replaceObject(Passage(source, beg, end), object, code));
}

QVariantMap SourceEdits::renameId(const QString& source, int object, const QString& name) const
{
    return asMap(::renameId(Passage(source, 0, source.size()), object, name));
}

QString SourceEdits::withFreshIds(const QString& source, const QString& code) const
{
    return ::withFreshIds(code, Outline(source));
}
