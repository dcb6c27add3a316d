// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/settling.h"

#include "quick/limits.h"

#include <QHash>
#include <private/qquickitem_p.h>
#include <private/qquickwindow_p.h>

namespace {

// Opens what the window calls for each item before a frame.
class Layout : public QQuickItem
{
public:
    using QQuickItem::updatePolish;
};

void layOut(QQuickItem& item)
{
    QQuickItemPrivate* d = QQuickItemPrivate::get(&item);
    d->polishScheduled = false;
    d->updatePolish();
    (item.*(&Layout::updatePolish))();
}

} // namespace

bool settleLayouts(const QQuickItem& root)
{
    if (!root.window())
        return true;
    QVector<QQuickItem*>& waiting = QQuickWindowPrivate::get(root.window())->itemsToPolish;
    QHash<const QQuickItem*, int> counts;
    while (!waiting.isEmpty()) {
        QQuickItem* item = waiting.takeLast();
        layOut(*item);
        if (++counts[item] > limits::layouts)
            return item != &root && !root.isAncestorOf(item);
    }
    return true;
}
