// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/snapping.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

// Places that are drawn on the same pixel are the same place.
constexpr qreal samePlace = 0.5;

// A rectangle along one of the two directions: what is said of `from` and `to` holds for both.
struct Span
{
    qreal from, to;           // along the direction
    qreal crossFrom, crossTo; // across it

    qreal centre() const { return (from + to) / 2; }
    qreal length() const { return to - from; }
};

Span across(const QRectF& r)
{
    return {r.left(), r.right(), r.top(), r.bottom()};
}

Span down(const QRectF& r)
{
    return {r.top(), r.bottom(), r.left(), r.right()};
}

using ToSpan = Span (*)(const QRectF&);

// The part of a span that may come to rest at a line: any of its three places, or one edge.
struct Part
{
    bool from = true, centre = true, to = true;
};

// The shortest way to a place within reach, so far.
class Nearest
{
public:
    explicit Nearest(qreal reach)
        : m_reach(reach)
    {
    }
    void offer(qreal distance)
    {
        if (std::abs(distance) > m_reach || (m_best && std::abs(distance) >= std::abs(*m_best)))
            return;
        m_best = distance;
    }
    qreal distance() const { return m_best.value_or(0); }

private:
    qreal m_reach;
    std::optional<qreal> m_best;
};

void offerLines(const Span& moved, const Span& other, Part part, Nearest& nearest)
{
    for (const qreal line : {other.from, other.centre(), other.to}) {
        if (part.from)
            nearest.offer(line - moved.from);
        if (part.centre)
            nearest.offer(line - moved.centre());
        if (part.to)
            nearest.offer(line - moved.to);
    }
}

bool isBeside(const Span& one, const Span& other)
{
    return one.crossFrom < other.crossTo && other.crossFrom < one.crossTo;
}

// The siblings in the way of a rectangle that moves along one direction, before and after it, nearest first.
struct Row
{
    QVector<Span> before, after;
};

Row rowOf(const Span& moved, const QVector<QRectF>& siblings, ToSpan toSpan)
{
    Row row;
    for (const QRectF& sibling : siblings) {
        const Span span = toSpan(sibling);
        if (!isBeside(moved, span))
            continue;
        if (span.centre() < moved.centre())
            row.before.append(span);
        else
            row.after.append(span);
    }
    std::sort(row.before.begin(), row.before.end(), [](const Span& a, const Span& b) { return a.to > b.to; });
    std::sort(row.after.begin(), row.after.end(),
              [](const Span& a, const Span& b) { return a.from < b.from; });
    return row;
}

// Gaps as wide as that between the next two on one side, and the same gap on both sides.
void offerGaps(const Span& moved, const Row& row, Nearest& nearest)
{
    const auto offer = [&](qreal place) { nearest.offer(place - moved.from); };
    const auto isGap = [](qreal gap) { return gap > samePlace; };
    if (!row.before.isEmpty() && !row.after.isEmpty()) {
        const qreal room = row.after.first().from - row.before.first().to - moved.length();
        if (isGap(room))
            offer(row.before.first().to + room / 2);
    }
    if (row.before.size() > 1) {
        const qreal gap = row.before[0].from - row.before[1].to;
        if (isGap(gap))
            offer(row.before[0].to + gap);
    }
    if (row.after.size() > 1) {
        const qreal gap = row.after[1].from - row.after[0].to;
        if (isGap(gap))
            offer(row.after[0].from - gap - moved.length());
    }
}

QLineF lineAt(qreal place, qreal from, qreal to, bool isUpright)
{
    return isUpright ? QLineF(place, from, place, to) : QLineF(from, place, to, place);
}

// What lies between two spans across the direction; 0 when they touch or overlap.
qreal distanceAcross(const Span& one, const Span& other)
{
    return std::max({0.0, other.crossFrom - one.crossTo, one.crossFrom - other.crossTo});
}

// Guides along the places of `moved`, now at rest, that it shares with others: one line a place, over all
// that share it, with the distance to the nearest.
void addLines(const Span& moved, const QVector<QRectF>& others, ToSpan toSpan, Part part, bool isUpright,
              QVector<Snapping::Guide>& guides)
{
    const std::pair<bool, qreal> places[] = {
        {part.from, moved.from}, {part.centre, moved.centre()}, {part.to, moved.to}};
    for (const auto& [isWanted, place] : places) {
        qreal from = moved.crossFrom, to = moved.crossTo;
        qreal distance = std::numeric_limits<qreal>::max();
        for (const QRectF& rect : others) {
            const Span other = toSpan(rect);
            const qreal off = std::min(
                {std::abs(other.from - place), std::abs(other.centre() - place), std::abs(other.to - place)});
            if (!isWanted || off >= samePlace)
                continue;
            from = std::min(from, other.crossFrom);
            to = std::max(to, other.crossTo);
            distance = std::min(distance, distanceAcross(moved, other));
        }
        if (distance < std::numeric_limits<qreal>::max())
            guides.append({lineAt(place, from, to, isUpright), distance, false});
    }
}

// A line across the gap between two neighbours, in the middle of what they share.
Snapping::Guide gapGuide(const Span& first, const Span& second, bool isUpright)
{
    const qreal middle =
        (std::max(first.crossFrom, second.crossFrom) + std::min(first.crossTo, second.crossTo)) / 2;
    return {lineAt(middle, first.to, second.from, !isUpright), second.from - first.to, true};
}

// Guides across the gaps on either side of `moved`, now at rest, that are as wide as each other or as the
// next.
void addGaps(const Span& moved, const Row& row, bool isUpright, QVector<Snapping::Guide>& guides)
{
    const auto isSame = [](qreal a, qreal b) { return a > samePlace && std::abs(a - b) < samePlace; };
    const qreal left = row.before.isEmpty() ? 0 : moved.from - row.before.first().to;
    const qreal right = row.after.isEmpty() ? 0 : row.after.first().from - moved.to;
    const bool isCentred = isSame(left, right);
    const bool continuesLeft = row.before.size() > 1 && isSame(left, row.before[0].from - row.before[1].to);
    const bool continuesRight = row.after.size() > 1 && isSame(right, row.after[1].from - row.after[0].to);
    if (isCentred || continuesLeft)
        guides.append(gapGuide(row.before[0], moved, isUpright));
    if (continuesLeft)
        guides.append(gapGuide(row.before[1], row.before[0], isUpright));
    if (isCentred || continuesRight)
        guides.append(gapGuide(moved, row.after[0], isUpright));
    if (continuesRight)
        guides.append(gapGuide(row.after[0], row.after[1], isUpright));
}

Part edgePart(Qt::Edges edges, Qt::Edge from, Qt::Edge to)
{
    return {edges.testFlag(from), false, edges.testFlag(to)};
}

} // namespace

void Snapping::gather(const QVector<QRectF>& siblings, const QRectF& around)
{
    m_siblings = siblings;
    m_all = siblings;
    m_all.append(around);
}

Snapping::Result Snapping::move(const QRectF& rect, qreal reach) const
{
    Result result;
    const auto wayAlong = [&](ToSpan toSpan) {
        const Span moved = toSpan(rect);
        Nearest nearest(reach);
        for (const QRectF& other : m_all)
            offerLines(moved, toSpan(other), Part(), nearest);
        offerGaps(moved, rowOf(moved, m_siblings, toSpan), nearest);
        return nearest.distance();
    };
    result.offset = {wayAlong(across), wayAlong(down)};
    const QRectF rest = rect.translated(result.offset);
    addLines(across(rest), m_all, across, Part(), true, result.guides);
    addLines(down(rest), m_all, down, Part(), false, result.guides);
    addGaps(across(rest), rowOf(across(rest), m_siblings, across), true, result.guides);
    addGaps(down(rest), rowOf(down(rest), m_siblings, down), false, result.guides);
    return result;
}

Snapping::Result Snapping::resize(const QRectF& rect, Qt::Edges edges, qreal reach) const
{
    const Part sides = edgePart(edges, Qt::LeftEdge, Qt::RightEdge);
    const Part ends = edgePart(edges, Qt::TopEdge, Qt::BottomEdge);
    const auto wayAlong = [&](ToSpan toSpan, Part part) {
        Nearest nearest(reach);
        for (const QRectF& other : m_all)
            offerLines(toSpan(rect), toSpan(other), part, nearest);
        return nearest.distance();
    };
    Result result;
    result.offset = {wayAlong(across, sides), wayAlong(down, ends)};
    const QPointF& by = result.offset;
    const QRectF rest = rect.adjusted(sides.from ? by.x() : 0, ends.from ? by.y() : 0, sides.to ? by.x() : 0,
                                      ends.to ? by.y() : 0);
    addLines(across(rest), m_all, across, sides, true, result.guides);
    addLines(down(rest), m_all, down, ends, false, result.guides);
    return result;
}
