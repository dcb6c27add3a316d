// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quick/live/snapping.h"

#include <QObject>
#include <QQuickItem>
#include <QVariantMap>

/// The QML type "Snapper": Snapping for an item that is dragged among its siblings. All rectangles are in the
/// coordinates of the items' parent, in px. GUI thread.
class Snapper : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes the edges of what is seen in `parent` besides `moved`, and of `parent` itself: once, when a drag
    /// begins.
    Q_INVOKABLE void gather(QQuickItem* parent, const QVariantList& moved);
    /// Where `rect`, being moved, comes to rest within `reach`: a map of "x" and "y", what to add to its
    /// position, and "guides", a list of maps of "x1", "y1", "x2", "y2", "distance" and "isGap" (see
    /// Snapping::Guide).
    Q_INVOKABLE QVariantMap move(const QRectF& rect, qreal reach) const;
    /// The same for `rect` being resized by its edges: "x" is for the left or right one, "y" for the top or
    /// bottom one of `edges` (Qt.LeftEdge and so on, put together).
    Q_INVOKABLE QVariantMap resize(const QRectF& rect, int edges, qreal reach) const;

private:
    Snapping m_snapping;
};
