// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
.pragma library

/// Where an item of `w` by `h` stands so that it fills a page of `sw` by `sh` as far as its shape allows.
///
/// Returns {turned, scale, x, y}, all lengths in pixels of the page. An item that lies the other way than the
/// page is turned by a quarter, counter-clockwise. Returns null while one of the lengths is not positive.
function fit(w, h, sw, sh) {
    if (!(w > 0 && h > 0 && sw > 0 && sh > 0))
        return null;
    const turned = (w >= h) !== (sw >= sh);
    const shownWidth = turned ? h : w;
    const shownHeight = turned ? w : h;
    const scale = Math.min(sw / shownWidth, sh / shownHeight);
    return {
        turned: turned,
        scale: scale,
        x: (sw - shownWidth * scale) / 2,
        y: (sh - shownHeight * scale) / 2
    };
}
