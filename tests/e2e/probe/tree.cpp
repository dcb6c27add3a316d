// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tree.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

QString textOf(const QQuickItem& item, const char* property)
{
    return item.property(property).toString();
}

QJsonArray screenRect(const QQuickItem& item)
{
    const QRectF scene = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    const QPoint corner = item.window()->mapToGlobal(scene.topLeft().toPoint());
    return {corner.x(), corner.y(), scene.width(), scene.height()};
}

QJsonObject entryOf(const QQuickItem& item)
{
    return {{"name", item.objectName()},
            {"text", textOf(item, "text")},
            {"icon", textOf(item, "faIcon")},
            {"tip", textOf(item, "toolTip")},
            {"rect", screenRect(item)},
            {"focus", item.hasActiveFocus()},
            {"enabled", item.isEnabled()},
            {"checked", item.property("checked").toBool()},
            {"clickable", item.metaObject()->indexOfSignal("clicked()") >= 0}};
}

bool isTelling(const QJsonObject& entry)
{
    return entry["name"] != QString() || entry["text"] != QString() || entry["icon"] != QString();
}

void addItems(const QQuickItem& item, QJsonArray& entries)
{
    if (!item.isVisible() || item.opacity() == 0)
        return;
    const QJsonObject entry = entryOf(item);
    if (isTelling(entry))
        entries.append(entry);
    for (const QQuickItem* child : item.childItems())
        addItems(*child, entries);
}

QString shownPage(const QQuickWindow& window)
{
    const auto* stack = window.findChild<QQuickItem*>("theStackView");
    const auto* page = stack ? stack->property("currentItem").value<QQuickItem*>() : nullptr;
    return page ? page->objectName() : QString();
}

} // namespace

QByteArray windowTree()
{
    QJsonObject tree{{"pid", QCoreApplication::applicationPid()},
                     {"active", QGuiApplication::focusWindow() != nullptr}};
    for (QWindow* window : QGuiApplication::allWindows()) {
        const auto* quick = qobject_cast<QQuickWindow*>(window);
        if (!quick || !quick->isVisible())
            continue;
        QJsonArray entries;
        addItems(*quick->contentItem(), entries);
        tree["page"] = shownPage(*quick);
        tree["cursorHidden"] = quick->cursor().shape() == Qt::BlankCursor;
        tree["items"] = entries;
    }
    return QJsonDocument(tree).toJson(QJsonDocument::Compact);
}
