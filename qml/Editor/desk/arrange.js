.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Where rectangles have to go to stand in line or with equal gaps. A way is what to add to x and y.

/// The way of `rect` to an edge or centre of `around`: "left", "centre", "right", "top", "middle", "bottom".
function aligned(rect, around, how) {
    const right = around.x + around.width - rect.width;
    const bottom = around.y + around.height - rect.height;
    const ways = {
        left: [around.x - rect.x, 0],
        centre: [(around.x + right) / 2 - rect.x, 0],
        right: [right - rect.x, 0],
        top: [0, around.y - rect.y],
        middle: [0, (around.y + bottom) / 2 - rect.y],
        bottom: [0, bottom - rect.y]
    };
    return { x: ways[how][0], y: ways[how][1] };
}

/// The ways of `rects` to equal gaps between them, "across" or "down": the outermost two stay.
function spread(rects, direction) {
    const [start, length] = direction === "across" ? ["x", "width"] : ["y", "height"];
    const order = rects.map((rect, i) => i).sort((a, b) => rects[a][start] - rects[b][start]);
    const first = rects[order[0]];
    const last = rects[order[order.length - 1]];
    const total = rects.reduce((sum, rect) => sum + rect[length], 0);
    const gap = (last[start] + last[length] - first[start] - total) / (rects.length - 1);
    const ways = [];
    order.reduce((place, i) => {
        const way = place - rects[i][start];
        ways[i] = direction === "across" ? { x: way, y: 0 } : { x: 0, y: way };
        return place + rects[i][length] + gap;
    }, first[start]);
    return ways;
}

/// The entry of the list `all`, from back to front, before which its entries `moved` have to go to come to the
/// "front", "forward", "backward" or to the "back"; null: behind all; undefined: they are there.
function orderedBefore(all, moved, how) {
    const rest = all.filter(entry => moved.indexOf(entry) < 0);
    const below = rest.filter(entry => all.indexOf(entry) < all.indexOf(moved[0])).length;
    const places = { front: rest.length, forward: below + 1, backward: below - 1, back: 0 };
    const place = places[how];
    const isThere = place < 0 || place > rest.length || _isAt(all, moved, rest, place);
    return isThere ? undefined : place < rest.length ? rest[place] : null;
}

function _isAt(all, moved, rest, place) {
    const wanted = rest.slice(0, place).concat(moved, rest.slice(place));
    return wanted.every((entry, i) => entry === all[i]);
}
