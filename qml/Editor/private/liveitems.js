// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Finding numbered items in the live document.

.pragma library

/// The visible numbered items below `parent` at the point (x, y) of `root`: parents before children, and of
/// siblings the one drawn on top last.
function under(x, y, parent, root) {
    const found = [];
    _gatherUnder(x, y, parent, root, found);
    return found;
}

function _gatherUnder(x, y, parent, root, found) {
    _drawingOrder(parent.children).filter(child => child.visible).forEach(child => {
        if (_isNumbered(child) && child.contains(root.mapToItem(child, x, y)))
            found.push(child);
        _gatherUnder(x, y, child, root, found);
    });
}

/// The item with the number `element`: `parent` or an item below it; null when there is none.
function numbered(parent, element) {
    if (parent.element === element)
        return parent;
    for (let i = 0; i < parent.children.length; ++i) {
        const found = numbered(parent.children[i], element);
        if (found)
            return found;
    }
    return null;
}

/// Adds the first item with each number, of `parent` and what is below it, to the Map `found`.
function firstByNumber(parent, found) {
    if (_isNumbered(parent) && !found.has(parent.element))
        found.set(parent.element, parent);
    const children = parent.children;
    for (let i = 0, count = children.length; i < count; ++i)
        firstByNumber(children[i], found);
    return found;
}

/// All items with the number `element` below `parent`: an item that shows several times has one number.
function allNumbered(parent, element) {
    return Array.prototype.reduce.call(parent.children, (found, child) =>
        found.concat(child.element === element ? [child] : [], allNumbered(child, element)), []);
}

function _isNumbered(item) {
    return item.element !== undefined && item.element !== -1;
}

function _drawingOrder(children) {
    return Array.prototype.map.call(children, (item, index) => ({ item, index }))
        .sort((one, other) => one.item.z - other.item.z || one.index - other.index)
        .map(entry => entry.item);
}
