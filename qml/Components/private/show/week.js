.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A schedule over one week, as it is drawn.
.import "schedule.js" as Rules

/// Quarters of an hour a day: what the week is looked at in.
const steps = 96;

/// The stretches of the day at whose midnight `midnight` stands in which the same entry is on: maps of "entry", its
/// position, -1 for none, "begin" and "end", shares of the day. `rules` are those of schedule.js.
function stretches(rules, midnight) {
    const found = [];
    for (let step = 0; step < steps; ++step) {
        const when = new Date(midnight.getFullYear(), midnight.getMonth(), midnight.getDate(), 0, 15 * step);
        const won = Rules.winners(rules, when);
        const entry = won.length > 0 ? won[0] : -1;
        const last = found[found.length - 1];
        if (last && last.entry === entry)
            last.end = (step + 1) / steps;
        else
            found.push({ entry: entry, begin: step / steps, end: (step + 1) / steps });
    }
    return found;
}

/// The midnights of the week of `date`, from Monday on.
function days(date) {
    const monday = date.getDate() - (date.getDay() + 6) % 7;
    return [0, 1, 2, 3, 4, 5, 6].map(day => new Date(date.getFullYear(), date.getMonth(), monday + day));
}
