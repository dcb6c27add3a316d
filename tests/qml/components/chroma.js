.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The arithmetic of the chroma key on one pixel, to compare the graphics card's result with.

function clamp(value) {
    return Math.max(0, Math.min(1, value));
}

function smoothstep(from, to, value) {
    var t = clamp((value - from) / (to - from));
    return t * t * (3 - 2 * t);
}

/// { r, g, b, a }, premultiplied, for a pixel and light of components 0 to 1.
function keyed(pixel, light, th, a2, amt, plus) {
    var r = pixel.r, g = pixel.g, b = pixel.b;
    var a = clamp(1 - th * (g - a2 * Math.max(r, b)));
    var sub = Math.max(g - (0.55 * b + 0.45 * r), 0);
    g -= sub;
    a -= smoothstep(amt, amt + 0.25, sub * a);
    var luma = Math.max(r * light.r + g * light.g + b * light.b, 0.00001);
    r += sub * r * 2 * light.r / luma + plus;
    g += sub * g * 2 * light.g / luma + plus;
    b += sub * b * 2 * light.b / luma + plus;
    return { r: clamp(r * a), g: clamp(g * a), b: clamp(b * a), a: a };
}
