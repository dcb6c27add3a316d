// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QQmlError>
#include <QQuickItem>
#include <QUrl>

#include <memory>

class QQmlContext;
class QQmlEngine;

/// The live objects of one document while it is edited. They stand in a context of their own: they see what
/// every project sees, and no name of the editor's pages. GUI thread.
class LiveScene
{
public:
    /// `engine` must outlive the scene.
    explicit LiveScene(QQmlEngine& engine);
    ~LiveScene();
    Q_DISABLE_COPY(LiveScene)

    /// Root of the document; null while there is none.
    QQuickItem* root() const { return m_root; }
    /// What was wrong with the last text or expression, by lines of the text that was handed in, from 1.
    QList<QQmlError> errors() const { return m_errors; }

    /// Makes the document `text` in place of the one before, as a child of `parent`; `url` is where its
    /// relative addresses begin. False when it cannot be made, is no Item or its scripts do not end: the one
    /// before stays.
    bool load(const QString& text, const QUrl& url, QQuickItem& parent);
    /// Makes the document `text` inside the scene's: it sees the ids that `parent` sees, and becomes what its
    /// default property takes. Null on failure, or when `parent` takes no objects.
    QQuickItem* insert(const QString& text, QQuickItem& parent);
    /// Takes an item out of sight. It lives until the document goes: its bindings know no other end.
    void remove(QQuickItem& item);
    void clear();

    /// What the engine says about the document `text` without making it; none: it could be made.
    QList<QQmlError> check(const QString& text, const QUrl& url) const;
    /// Gives `item`'s property (dotted for groups and attached ones) the value of the expression `code`,
    /// once. False when it fails.
    bool assign(QQuickItem& item, const QString& name, const QString& code);
    /// Binds the property to `code`, which must have a value now; false when it has none.
    bool bind(QQuickItem& item, const QString& name, const QString& code);
    /// Value of the expression `code` as `item` sees it; invalid on failure, with errors() then.
    QVariant evaluate(QQuickItem& item, const QString& code);

private:
    bool set(QQuickItem& item, const QString& name, const QString& code);
    bool comesToRest(const QQuickItem& item);
    QQuickItem* make(const QString& text, const QUrl& url, QQmlContext* context, QQuickItem& parent);

    QQmlEngine& m_engine;
    QUrl m_url;
    std::unique_ptr<QQmlContext> m_context; // the document's; without it nothing in the document evaluates
    QPointer<QQuickItem> m_root;            // owned; a parent that goes first takes it along
    QQuickItem m_aside;                     // holds what was removed
    QList<QQmlError> m_errors;
};
