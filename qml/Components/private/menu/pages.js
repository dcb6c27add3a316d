.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// How lines are shared out on pages.

/// The first line of each page, for lines of `heights` with `spacing` between them on pages `room` high: as few pages
/// as possible, and these as evenly filled as possible. A line that is higher than a page gets one to itself.
function starts(heights, spacing, room) {
    const fewest = filled(heights, spacing, room);
    let least = 0;
    let most = room;
    while (most - least > 1) {
        const middle = (least + most) / 2;
        if (filled(heights, spacing, middle).length > fewest.length)
            least = middle;
        else
            most = middle;
    }
    return filled(heights, spacing, most);
}

/// The height of `heights` with `spacing` between them.
function sum(heights, spacing) {
    return heights.reduce((height, line) => height + line, spacing * Math.max(0, heights.length - 1));
}

// The first line of each page when every page takes as many lines as it can hold.
function filled(heights, spacing, room) {
    const starts = [0];
    let used = 0;
    heights.forEach(function(height, line) {
        if (used > 0 && used + height > room) {
            starts.push(line);
            used = 0;
        }
        used += height + spacing;
    });
    return starts;
}
