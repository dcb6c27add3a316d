// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/editingsession.h"

#include <QObject>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

/// The part of the native API that the editor script calls, on a real editing session.
class EditingApi : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void setSourceCode(QString sourceCode) { session.setSource(sourceCode); }
    Q_INVOKABLE QString generateEditor() { return session.generateEditor(); }
    Q_INVOKABLE QString editedSourceCode() { return session.source(); }
    Q_INVOKABLE QString sourceCode(int beg, int end) { return session.source(beg, end); }
    Q_INVOKABLE QVariantList getMap() { return session.getMap(); }
    Q_INVOKABLE QVariantList parseAndGetMap(QString sc) { return EditingSession::parseAndGetMap(sc); }
    Q_INVOKABLE void replaceSourceCode(int beg, int end, QString sc) { session.replace(beg, end, sc); }
    Q_INVOKABLE int posInSourceCode(QString s, int from = 0) { return session.position(s, from); }
    Q_INVOKABLE int prevPosInSourceCode(QString s, int from = 0) { return session.previousPosition(s, from); }
    Q_INVOKABLE QVariantMap dirmap() { return savedDirmap; }
    Q_INVOKABLE bool updateDirmapFile(QString listf) { return listf.isNull(); } // never meant by the script
    Q_INVOKABLE bool updateDirmapFile(QVariantMap dirmap);

    EditingSession session{[](const QString&, const QString&) { return true; }};
    QVariantMap savedDirmap;
};

inline bool EditingApi::updateDirmapFile(QVariantMap dirmap)
{
    savedDirmap = dirmap;
    return true;
}

/// The editor script in a QML engine, as the editor pages import it, with the native side above.
class EditorScript
{
public:
    EditorScript();

    /// Makes `source` the edited text and takes its map.
    void open(const QString& source);
    /// Runs a line of script with "Ejs" in scope and, as "a", "b" and "c", the arguments; returns its value.
    QVariant run(const QString& code, const QVariantList& arguments = {});
    /// The script's item map.
    QVariantList map() { return run("Ejs.map").toList(); }
    QString source() const { return api.session.source(); }

    EditingApi api;
    QQmlEngine engine;

private:
    QTemporaryDir m_imports;
    std::unique_ptr<QObject> m_page;
};
