.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Places of words in a text, as UTF-16 offsets. Small and capital letters count as the same.

/// Where `words` begin in `text`, in order; places do not overlap.
function places(text, words) {
    const found = [];
    const pattern = new RegExp(words.replace(/[.*+?^${}()|[\]\\]/g, "\\$&"), "gi");
    if (words !== "") {
        for (let match = pattern.exec(text); match; match = pattern.exec(text))
            found.push(match.index);
    }
    return found;
}

/// The first place behind `position`, the first of all behind the last one; -1 when there is none.
function after(places, position) {
    return from(places, position + 1);
}

/// The first place at or behind `position`, else the first of all; -1 when there is none.
function from(places, position) {
    const next = places.find(place => place >= position);
    return next !== undefined ? next : places.length > 0 ? places[0] : -1;
}

/// The last place before `position`, the last of all before the first one; -1 when there is none.
function before(places, position) {
    const earlier = places.filter(place => place < position);
    const list = earlier.length > 0 ? earlier : places;
    return list.length > 0 ? list[list.length - 1] : -1;
}
