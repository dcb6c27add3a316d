// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "qmldoc/outline.h"
#include "quick/live/livescene.h"

#include <QQmlParserStatus>
#include <QTimer>
#include <QVariantList>

#include <memory>

/// The QML type "LiveDocument": the document of an editor page, live and at rest. GUI thread.
///
/// What it is made of is the source with the number of each object put in (see thinnedText()). Calls that can
/// fail say what was wrong in `faults`.
class LiveDocument : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickItem* root READ root NOTIFY rootChanged)
    Q_PROPERTY(QVariantList faults READ faults NOTIFY faultsChanged)

public:
    using QObject::QObject;

    /// Root of the document; null while there is none.
    QQuickItem* root() const { return m_scene ? m_scene->root() : nullptr; }
    /// What was wrong with the last call, empty when nothing: maps of "message", and "line" and "column"
    /// (from 1, those of the source; 0 where there is no place).
    QVariantList faults() const { return m_faults; }

    /// Puts the document `source` in place of the one before, inside `parent`; `folder` is the project's.
    /// False when it cannot be made: the one before stays.
    Q_INVOKABLE bool load(const QString& source, const QString& folder, QQuickItem* parent);
    /// Makes `source`, import lines and one object, inside `parent`, an item of the document. Its objects are
    /// numbered upward from `firstElement`. Null on failure.
    Q_INVOKABLE QQuickItem* insert(const QString& source, int firstElement, QQuickItem* parent);
    /// Whether `source`, import lines and one object, could be made. Names in expressions are not looked up.
    Q_INVOKABLE bool canMake(const QString& source);
    /// Draws an item below `before`, another one beside it; with null above all beside it.
    Q_INVOKABLE void stack(QQuickItem* item, QQuickItem* before);
    /// Takes an item that was loaded or inserted out of the document.
    Q_INVOKABLE void remove(QQuickItem* item);
    /// Takes the whole document away.
    Q_INVOKABLE void clear();

    /// Whether a document of the imports `imports` could hold an object that begins as `head` does, up to its
    /// brace, with the one member `member`. Names in expressions are not looked up.
    Q_INVOKABLE bool couldHold(const QString& imports, const QString& head, const QString& member);
    /// Gives the item's property `name` the value of the expression `code`, once or for good; false when that
    /// fails: the property may then have lost its binding.
    Q_INVOKABLE bool assign(QQuickItem* item, const QString& name, const QString& code);
    Q_INVOKABLE bool bind(QQuickItem* item, const QString& name, const QString& code);

    /// Whether one of the numbers belongs to several items, as in what a repeater or a list makes.
    Q_INVOKABLE bool isRepeated(const QVariantList& elements) const;
    /// What places `item`: a map of "by" (see Placement; "" when it stands where its x and y say), and of
    /// "x", "y", "width", "height", true for the values that have no effect.
    Q_INVOKABLE QVariantMap placement(QQuickItem* item) const;

    void classBegin() override;
    void componentComplete() override {}

signals:
    void rootChanged();
    void faultsChanged();

private:
    void rest();
    void beginRest();
    bool isWhole(const Outline& outline);
    void takeFaults(const QVariantList& faults);
    void takeErrors(const QList<QQmlError>& errors);

    std::unique_ptr<LiveScene> m_scene;
    QVariantList m_faults;
    QTimer m_restTimer;
    QUrl m_url;
    int m_rests = 0; // since the document was loaded
};
