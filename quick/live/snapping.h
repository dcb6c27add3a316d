// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineF>
#include <QRectF>
#include <QVector>

/// Finds where a rectangle that is dragged comes to rest: at the edges and centres of the rectangles around
/// it, and where it leaves gaps as wide as theirs. Lengths in px of one coordinate system.
class Snapping
{
public:
    /// A line that shows why: along an edge or centre, or across a gap.
    struct Guide
    {
        QLineF line;
        qreal distance = 0; ///< between the two rectangles that it joins, in px; 0 when they touch or overlap
        bool isGap = false;
    };
    struct Result
    {
        QPointF offset; ///< what to add to the rectangle's position, or to its edges
        QVector<Guide> guides;
    };

    /// What to snap to from now on: `siblings`, and edges and centre of `around`.
    void gather(const QVector<QRectF>& siblings, const QRectF& around);
    /// For `rect` being moved: the nearest place within `reach` px each way.
    Result move(const QRectF& rect, qreal reach) const;
    /// For `rect` being resized by `edges`: the nearest place of these within `reach` px.
    Result resize(const QRectF& rect, Qt::Edges edges, qreal reach) const;

private:
    QVector<QRectF> m_siblings;
    QVector<QRectF> m_all; // these and the area around them
};
