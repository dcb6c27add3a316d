// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/capi.h"
#include "app/qmlcontext.h"

#include <QQuickView>
#include <QTemporaryDir>

#include <memory>

/// The desktop editor's page in a window of its own, with a project whose main document it has opened. GUI
/// thread.
class EditorPage
{
public:
    /// Opens a project with the document `source` and, if named, all files of the folder `media`.
    explicit EditorPage(const QString& source, const QString& media = QString());
    ~EditorPage();

    QQuickView& window() { return m_view; }
    CAPI& capi() { return m_capi; }
    /// What the script `code` returns: in it, `desk` is the page's EditingDesk, `Ejs` the editor script.
    QVariant run(const QString& code);
    /// Whether the document is shown, and why it is not.
    bool isShown() { return run(QStringLiteral("desk.fault === null")).toBool(); }
    QString fault() { return run(QStringLiteral("desk.fault.message")).toString(); }
    /// What is wrong, in words; empty when a fresh parse gives the same item map and the source can be shown.
    QString disorder();

private:
    QTemporaryDir m_home;
    const bool m_isHome; // must be set before the API looks for its folders
    CAPI m_capi{nullptr, nullptr};
    QQuickView m_view;
    std::unique_ptr<QmlContext> m_context;
    std::unique_ptr<QObject> m_probe;
};
