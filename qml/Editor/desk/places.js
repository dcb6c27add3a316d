.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Places in a source text, in UTF-16 code units, when the text becomes another one.

/// Tells where what stood at a position of `before` stands in `after`: a function of the position, which gives -1 for
/// what was part of the change.
function mover(before, after) {
    const most = Math.min(before.length, after.length);
    const start = _longest(most, length => before.slice(0, length) === after.slice(0, length));
    const end = _longest(most, length => before.slice(before.length - length) === after.slice(after.length - length));
    return position => {
        const behind = before.length - position;
        return position < start ? position : behind <= end ? after.length - behind : -1;
    };
}

// The greatest length up to `most` that `isAlike`, as are all below it.
function _longest(most, isAlike) {
    let [alike, different] = [0, most + 1];
    while (different - alike > 1) {
        const middle = (alike + different) >> 1;
        if (isAlike(middle))
            alike = middle;
        else
            different = middle;
    }
    return alike;
}
