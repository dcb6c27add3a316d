.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// How times of entries are written.

// Locale.ShortFormat, which scripts cannot see.
const shortFormat = 1;

/// `time` (milliseconds since 1970) as short as it can be on the day of `now`: the time on the same day, else the date.
/// "" for 0, the unknown time.
function brief(time, now, locale) {
    if (time === 0)
        return "";
    const date = new Date(time);
    const isToday = date.toDateString() === new Date(now).toDateString();
    return isToday ? date.toLocaleTimeString(locale, locale.timeFormat(shortFormat).replace(/[:.]ss?/, ""))
                   : date.toLocaleDateString(locale, "d MMM");
}
