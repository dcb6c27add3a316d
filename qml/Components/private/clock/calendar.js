.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// The days on the page of a calendar.

/// The weeks that touch `month` (0 to 11) of `year`, from `firstDay` (0 is Sunday) on, as a flat list of days: date
/// (the day's number), isInMonth.
function month(year, month, firstDay) {
    const before = (new Date(year, month, 1).getDay() - firstDay + 7) % 7;
    const length = new Date(year, month + 1, 0).getDate();
    const days = [];
    for (let i = 0; i < Math.ceil((before + length) / 7) * 7; ++i) {
        const date = new Date(year, month, 1 - before + i, 12);
        days.push({ date: date.getDate(), isInMonth: date.getMonth() === month });
    }
    return days;
}
