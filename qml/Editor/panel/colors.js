// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The colours that stand in a source.

/// At most `count` colours of the text `source`, those that stand there most first, each as it is written first:
/// quoted hexadecimal ones wherever they are, and names as values of properties that are called colours.
function used(source, count) {
    const coded = source.match(/(["'])#(?:[0-9a-f]{3}|[0-9a-f]{6}|[0-9a-f]{8})\1/gi) || [];
    const named = source.match(/colou?r\w*\s*:\s*(["'])[a-z]+\1/gi) || [];
    const all = coded.concat(named.map(text => text.replace(/^[^"']*/, "")));
    const found = [];
    all.map(text => text.slice(1, -1)).filter(_isColor).forEach(text => {
        const known = found.find(entry => Qt.colorEqual(entry.text, text));
        if (known)
            ++known.times;
        else
            found.push({ text: text, times: 1 });
    });
    return found.map((entry, i) => Object.assign(entry, { place: i }))
                .sort((one, other) => other.times - one.times || one.place - other.place)
                .slice(0, count).map(entry => entry.text);
}

function _isColor(text) {
    try {
        return Qt.colorEqual(text, text);
    } catch (problem) {
        return false;
    }
}
