.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// What of a slide stands before its pictures.

/// The items in `item`, a slide or part of it, that are no pictures: all but those that show a source or fill the
/// slide. What lies in an item that fills it is looked at by itself.
function itemsOf(slide, item) {
    const found = [];
    for (let i = 0; i < item.children.length; ++i) {
        const child = item.children[i];
        const isPicture = child.source !== undefined && child.sourceComponent === undefined;
        if (!isPicture && fills(child, slide))
            found.push.apply(found, itemsOf(slide, child));
        else if (!isPicture && child.visible)
            found.push(child);
    }
    return found;
}

function fills(item, slide) {
    return item.x < 1 && item.y < 1 && item.x + item.width > slide.width - 1 && item.y + item.height > slide.height - 1;
}
