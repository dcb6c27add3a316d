.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// When a clock that shows a date format has to look at the time again.
.import "../limits.js" as Limits

/// The shortest period, in milliseconds, at which a text in `format` (as for Qt.formatDateTime) can change.
function period(format) {
    const fields = format.replace(/'[^']*('|$)/g, "");
    if (fields.indexOf("z") >= 0)
        return 100;
    if (fields.indexOf("s") >= 0)
        return 1000;
    return Limits.clockLookup;
}

/// Milliseconds from `now` (as Date.now() counts) to the next multiple of `period`.
function untilNext(now, period) {
    return period - ((now % period) + period) % period;
}
