// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantList>

/// QML's door to the faults of a document: lists of maps of "line" and "column" (1-based, of the source),
/// "message" (in words) and "file" (the URL of another document that is to blame, else "").
class DocumentFaults : public QObject
{
    Q_OBJECT

public:
    /// What keeps `source` from being edited before the engine has seen it; see faultsInSource().
    Q_INVOKABLE QVariantList inSource(const QString& source) const;
    /// Why the document `source`, whose file is `file`, would load without end; see endlessLoading().
    Q_INVOKABLE QVariantList inLoading(const QString& source, const QUrl& file) const;
    /// What it takes to make the document `source`: a map of "characters", "objects" and "line"; see Burden.
    Q_INVOKABLE QVariantMap burden(const QString& source) const;

    /// What the engine found in `text`, made of `source` and handed to it under `url`. `errors` is the
    /// qmlErrors of what Qt.createQmlObject() throws: maps of "lineNumber", "columnNumber", "message",
    /// "fileName".
    Q_INVOKABLE QVariantList inText(const QString& source, const QString& text, const QUrl& url,
                                    const QVariantList& errors) const;
};
