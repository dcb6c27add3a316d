.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The days that a forecast shows.
.import "forecast.js" as Forecast

/// `count` days from the one of `now` (milliseconds since 1970) on: those that `answer`, as forecast.js reads it,
/// knows; behind them, and without an answer, days with a date alone.
function shown(answer, count, now) {
    const known = answer ? Forecast.daysFrom(answer, now).slice(0, count) : [];
    const offset = answer ? answer.offset * 1000 : -new Date(now).getTimezoneOffset() * 60000;
    for (let i = known.length; i < count; ++i)
        known.push({ date: new Date(now + offset + i * 86400000).toISOString().slice(0, 10) });
    return known;
}

/// The local date of a day's "date", for its name.
function dateOf(day) {
    const parts = day.date.split("-").map(Number);
    return new Date(parts[0], parts[1] - 1, parts[2]);
}
