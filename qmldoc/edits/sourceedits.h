// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// QML's door to the changes of a source. Each function works out one change of `source` and changes nothing
/// itself.
///
/// [beg, end) is the object whose text is parsed again to judge the change; what the change touches lies in
/// it. With imports it is the whole source. Objects are named by the offset at which they begin. All offsets
/// are in UTF-16 code units of `source`.
///
/// A change is a map of "refusal" (why it cannot be made, in words; else ""), "edits" and "records": the
/// item-map records, after the change, of the objects that the edits touch. An edit is a map of "beg", "end"
/// and "text", in the order of the text, of "movedBeg" and "movedEnd", where the objects in its text stood
/// before (-1: new ones), and of "objects", their records after the change.
class SourceEdits : public QObject
{
    Q_OBJECT

public:
    /// `values` is a list of maps of "object", "name" and "text"; see ::setProperties().
    Q_INVOKABLE QVariantMap setProperties(const QString& source, int beg, int end,
                                          const QVariantList& values) const;
    Q_INVOKABLE QVariantMap addObjects(const QString& source, int beg, int end, int parent,
                                       const QString& code, const QStringList& imports) const;
    Q_INVOKABLE QVariantMap insertObject(const QString& source, int beg, int end, int parent, int before,
                                         const QString& code, const QStringList& imports) const;
    Q_INVOKABLE QVariantMap removeObjects(const QString& source, int beg, int end,
                                          const QVariantList& objects) const;
    Q_INVOKABLE QVariantMap moveObjects(const QString& source, int beg, int end, const QVariantList& objects,
                                        int parent, int before) const;
    Q_INVOKABLE QVariantMap replaceObject(const QString& source, int beg, int end, int object,
                                          const QString& code) const;
    Q_INVOKABLE QVariantMap renameId(const QString& source, int object, const QString& name) const;
    /// `code` without the ids that `source` has; see ::withFreshIds().
    Q_INVOKABLE QString withFreshIds(const QString& source, const QString& code) const;
};
