// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/snapper.h"

#include "quick/live/element.h"

#include <QSet>

namespace {

QVariantMap mapOf(const Snapping::Result& result)
{
    QVariantList guides;
    for (const Snapping::Guide& guide : result.guides)
        guides.append(QVariantMap{{"x1", guide.line.x1()},
                                  {"y1", guide.line.y1()},
                                  {"x2", guide.line.x2()},
                                  {"y2", guide.line.y2()},
                                  {"distance", guide.distance},
                                  {"isGap", guide.isGap}});
    return {{"x", result.offset.x()}, {"y", result.offset.y()}, {"guides", guides}};
}

// What a component holds for itself is no neighbour: only what stands in the document has a number.
bool isNeighbour(const QQuickItem& item)
{
    return item.isVisible() && item.width() > 0 && item.height() > 0 && elementOf(item) >= 0;
}

QSet<const QQuickItem*> itemsIn(const QVariantList& list)
{
    QSet<const QQuickItem*> items;
    for (const QVariant& entry : list)
        items.insert(entry.value<QQuickItem*>());
    return items;
}

} // namespace

void Snapper::gather(QQuickItem* parent, const QVariantList& moved)
{
    const QSet<const QQuickItem*> own = itemsIn(moved);
    QVector<QRectF> siblings;
    for (QQuickItem* item : parent->childItems())
        if (isNeighbour(*item) && !own.contains(item))
            siblings.append(item->mapRectToItem(parent, QRectF(0, 0, item->width(), item->height())));
    m_snapping.gather(siblings, QRectF(0, 0, parent->width(), parent->height()));
}

QVariantMap Snapper::move(const QRectF& rect, qreal reach) const
{
    return mapOf(m_snapping.move(rect, reach));
}

QVariantMap Snapper::resize(const QRectF& rect, int edges, qreal reach) const
{
    return mapOf(m_snapping.resize(rect, Qt::Edges(edges), reach));
}
