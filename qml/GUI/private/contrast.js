// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Readable pairs of colours, by the contrast ratio of the Web Content Accessibility Guidelines 2.1.
.pragma library

const readable = 4.5;
const strong = 7;

function channel(value) {
    return value <= 0.03928 ? value / 12.92 : Math.pow((value + 0.055) / 1.055, 2.4);
}

function luminance(color) {
    return 0.2126 * channel(color.r) + 0.7152 * channel(color.g) + 0.0722 * channel(color.b);
}

// From 1 (the same) to 21 (black on white).
function ratio(one, other) {
    const a = luminance(one) + 0.05;
    const b = luminance(other) + 0.05;
    return Math.max(a, b) / Math.min(a, b);
}

// The colour with its HSL lightness lowered by `amount` (0 to 1).
function deeper(color, amount) {
    const hue = Math.max(0, color.hslHue);
    return Qt.hsla(hue, color.hslSaturation, Math.max(0, color.hslLightness - amount), color.a);
}

// `color`, deepened only as far as `ink` needs to be readable on it (or it on `ink`).
function deepened(color, ink) {
    let result = color;
    while (ratio(result, ink) < readable && result.hslLightness > 0)
        result = deeper(result, 0.01);
    return result;
}

// The colours of a filled control: the theme's own where they are readable; dark ink on a bright fill; else a
// fill so deep that it also serves as ink on `paper`.
function pair(fill, ink, darkInk, paper) {
    if (ratio(fill, ink) >= readable)
        return { "fill": fill, "ink": ink };
    if (ratio(fill, darkInk) >= strong)
        return { "fill": fill, "ink": darkInk };
    return { "fill": deepened(fill, paper), "ink": ink };
}
