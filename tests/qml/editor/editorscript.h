// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/capi.h"

#include <QQmlEngine>
#include <QTemporaryDir>

#include <memory>

/// The editor script in a QML engine set up as the program's, with its native API object.
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
    QString source() { return api->editedSourceCode(); }

private:
    QTemporaryDir m_home;

public:
    std::unique_ptr<CAPI> api;
    QQmlEngine engine;

private:
    std::unique_ptr<QObject> m_page;
};
