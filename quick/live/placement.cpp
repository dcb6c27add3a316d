// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/placement.h"

#include <QQuickItem>

#include <private/qquickanchors_p.h>
#include <private/qquickanchors_p_p.h>
#include <private/qquickitem_p.h>

namespace {

struct Placer
{
    const char* type;
    const char* name;
    bool x, y, size;
};

constexpr Placer placers[] = {
    {"QQuickRow", "row", true, false, false},     {"QQuickColumn", "column", false, true, false},
    {"QQuickGrid", "grid", true, true, false},    {"QQuickFlow", "flow", true, true, false},
    {"QQuickLayout", "layout", true, true, true},
};

Placement anchored(const QQuickAnchors& anchors)
{
    const auto used = anchors.usedAnchors();
    const bool isFilled = anchors.fill();
    const bool isCentred = anchors.centerIn();
    const bool isPlacedAcross = used & QQuickAnchors::Horizontal_Mask;
    const bool isPlacedDown = used & QQuickAnchors::Vertical_Mask;
    Placement placement;
    placement.x = isFilled || isCentred || isPlacedAcross;
    placement.y = isFilled || isCentred || isPlacedDown;
    placement.width = isFilled || (used & QQuickAnchors::LeftAnchor && used & QQuickAnchors::RightAnchor);
    placement.height = isFilled || (used & QQuickAnchors::TopAnchor && used & QQuickAnchors::BottomAnchor);
    if (placement.x || placement.y)
        placement.by = QStringLiteral("anchors");
    return placement;
}

bool isOfAView(const QQuickItem& parent)
{
    const QQuickItem* view = parent.parentItem();
    return view && view->inherits("QQuickItemView");
}

} // namespace

Placement placementOf(const QQuickItem& item)
{
    const QQuickItem* parent = item.parentItem();
    if (!parent)
        return {};
    for (const Placer& placer : placers)
        if (parent->inherits(placer.type))
            return {QString::fromLatin1(placer.name), placer.x, placer.y, placer.size, placer.size};
    if (isOfAView(*parent))
        return {QStringLiteral("list"), true, true, false, false};
    const QQuickAnchors* anchors = QQuickItemPrivate::get(&item)->_anchors;
    return anchors ? anchored(*anchors) : Placement();
}
