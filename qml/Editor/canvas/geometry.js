.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// How items stand to each other: rectangles and turned coordinate systems. An item's own coordinates have their origin
// at its top left corner; a point is anything with x and y.

/// How `item` lies on `canvas`: where its origin stands, and the steps that one pixel to the right and one down make
/// there. Reads each item between the two, so that a binding follows them all.
function axes(item, canvas) {
    if (!item)
        return { x: 0, y: 0, right: Qt.point(1, 0), down: Qt.point(0, 1) };
    for (let step = item; step && step !== canvas; step = step.parent)
        [step.x, step.y, step.width, step.height, step.scale, step.rotation];
    const [origin, right, down] = [[0, 0], [1, 0], [0, 1]].map(([x, y]) => canvas.mapFromItem(item, x, y));
    return { x: origin.x, y: origin.y, right: Qt.point(right.x - origin.x, right.y - origin.y),
             down: Qt.point(down.x - origin.x, down.y - origin.y) };
}

/// The matrix that takes coordinates of the item to those of the canvas.
function matrix(axes) {
    return Qt.matrix4x4(axes.right.x, axes.down.x, 0, axes.x, axes.right.y, axes.down.y, 0, axes.y,
                        0, 0, 1, 0, 0, 0, 0, 1);
}

/// Pixels of the canvas that one of the item takes; never 0.
function unit(axes) {
    return Math.sqrt(Math.abs(axes.right.x * axes.down.y - axes.down.x * axes.right.y)) || 1;
}

/// The smallest upright rectangle of the canvas around an item of that size.
function bounds(axes, width, height) {
    const corners = [[0, 0], [width, 0], [0, height], [width, height]];
    return around(corners.map(([x, y]) => Qt.rect(axes.x + x * axes.right.x + y * axes.down.x,
                                                  axes.y + x * axes.right.y + y * axes.down.y, 0, 0)));
}

/// Place of the whole item, with its rotation and scale, in its parent's coordinates.
function boundsInParent(item) {
    return item.parent.mapFromItem(item, 0, 0, item.width, item.height);
}

/// The smallest rectangle around all of `rects`, which are not none.
function around(rects) {
    const left = Math.min(...rects.map(rect => rect.x));
    const top = Math.min(...rects.map(rect => rect.y));
    const right = Math.max(...rects.map(rect => rect.x + rect.width));
    const bottom = Math.max(...rects.map(rect => rect.y + rect.height));
    return Qt.rect(left, top, right - left, bottom - top);
}

/// The rectangle between two points, in any order.
function between(one, other) {
    return Qt.rect(Math.min(one.x, other.x), Math.min(one.y, other.y),
                   Math.abs(one.x - other.x), Math.abs(one.y - other.y));
}

function overlap(one, other) {
    return one.x < other.x + other.width && other.x < one.x + one.width
        && one.y < other.y + other.height && other.y < one.y + one.height;
}

/// The point of `item` about which it turns and scales, as shares of its width and height.
function originShare(item) {
    const shares = [[0, 0], [0.5, 0], [1, 0], [0, 0.5], [0.5, 0.5], [1, 0.5], [0, 1], [0.5, 1], [1, 1]];
    return shares[item.transformOrigin];
}

/// What `item` makes of the vector (x, y) of its own coordinates in its parent's: turned and scaled.
function turned(item, x, y) {
    const angle = item.rotation * Math.PI / 180;
    const [cos, sin] = [Math.cos(angle) * item.scale, Math.sin(angle) * item.scale];
    return { x: x * cos - y * sin, y: x * sin + y * cos };
}

/// The vector of the item's own coordinates that turned() takes to (x, y).
function unturned(item, x, y) {
    const angle = -item.rotation * Math.PI / 180;
    const [cos, sin] = [Math.cos(angle) / item.scale, Math.sin(angle) / item.scale];
    return { x: x * cos - y * sin, y: x * sin + y * cos };
}

/// Where `item` has to stand so that, of `width` by `height`, it keeps the point at the shares (shareX, shareY) of
/// its present size where it is.
function placeKeeping(item, shareX, shareY, width, height) {
    const [originX, originY] = originShare(item);
    const before = turned(item, (shareX - originX) * item.width, (shareY - originY) * item.height);
    const after = turned(item, (shareX - originX) * width, (shareY - originY) * height);
    return {
        x: item.x + originX * (item.width - width) + before.x - after.x,
        y: item.y + originY * (item.height - height) + before.y - after.y
    };
}
