// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/capi.h"
#include "app/qmlcontext.h"

#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

#include <memory>

/// Settings and workspace of a test program, apart from the user's. Goes before the application object.
class TestProfile
{
public:
    TestProfile();

    /// Forgets settings and projects, then stores `settings`.
    static void reset(const QVariantMap& settings);
    static QVariant setting(const QString& name);
    /// Makes a project with this main.qml; without a document when the text is null.
    static void addProject(const QString& name,
                           const QString& document = QStringLiteral("import QtQuick 2.15\nItem {}"));

private:
    QTemporaryDir m_folder;
};

/// The shell's own root document over the real native API, in a window.
class Shell
{
public:
    /// `initial`: the root's properties that the command line sets.
    explicit Shell(const QVariantMap& initial = {}, const QSize& size = QSize(1280, 720));
    ~Shell();

    CAPI& api() { return *m_api; }
    QQuickItem* root() const { return m_view.rootObject(); }
    /// The current page.
    QQuickItem* page() const { return root()->property("currentItem").value<QQuickItem*>(); }
    QString pageName() const { return page()->objectName(); }
    /// The item of that object name.
    QQuickItem* find(const QString& name) const { return root()->findChild<QQuickItem*>(name); }
    /// Leaves the current page, as the Escape key does.
    void goBack();
    void resize(const QSize& size) { m_view.resize(size); }
    /// What the QML engine complained about.
    QStringList warnings() const { return m_warnings; }

private:
    QStringList m_warnings;
    QQuickView m_view;
    std::unique_ptr<CAPI> m_api;
    QmlContext m_context;
};
