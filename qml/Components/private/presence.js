.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// How far an item that is part of a slide may go. An item that is in no slide is always "shown".
//
// Slides take turns (see Slideshow). Items that are expensive to keep bind their presence to presenceOf(root), and
// - absent: keep nothing that costs memory or processor time;
// - waiting: get everything ready, show the first picture, but hold still;
// - shown: run.

const absent = 0;
const waiting = 1;
const shown = 2;

/// The nearest slide around `item`; null when there is none. In a binding it follows every change of parent.
function slideAround(item) {
    for (let ancestor = item.parent; ancestor; ancestor = ancestor.parent) {
        if (ancestor.isSlide === true)
            return ancestor;
    }
    return null;
}

/// Presence of `item`, which is its slide's.
function presenceOf(item) {
    const slide = slideAround(item);
    return slide ? slide.presence : shown;
}

/// Whether `item` and everything in it can be shown without a blank place: nothing is loading any more.
function isSettled(item) {
    if (item.settled === false || (item.settled === undefined && isLoadingImage(item)))
        return false;
    for (let i = 0; i < item.children.length; ++i) {
        if (!isSettled(item.children[i]))
            return false;
    }
    return true;
}

/// Whether `item` is part of a document that is open in the editor: only there objects carry numbers.
function isEdited(item) {
    return item.element !== undefined && item.element !== -1;
}

/// Whether `item` is somewhere in such a document.
function isInEditor(item) {
    for (let at = item; at; at = at.parent) {
        if (isEdited(at))
            return true;
    }
    return false;
}

// Plain Image items have no `settled`; Image.Loading is 2.
function isLoadingImage(item) {
    return item.paintedWidth !== undefined && item.sourceSize !== undefined && item.status === 2;
}
