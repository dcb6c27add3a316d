.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Which rules of a schedule are active at a moment, and when that changes. All times are those that a clock on the wall
// shows: a rule that begins in the hour that is skipped in spring begins when the clock jumps; one in the hour that
// comes twice in autumn is active twice.

const daySeconds = 86400;

/// A rule, made from `raw`, an object as written in a document:
/// - slide or slides: positions or object names of the slides it shows;
/// - days: ISO numbers (1 is Monday) or a text like "mon-fri, sun"; none: all days;
/// - from, until: first and last date as "2026-12-24", or "12-24" for every year; none: no bound;
/// - begin, end: "22:00" or "22:00:30"; an end at or before the beginning lies on the next day; none: midnight;
/// - priority: a number; of the active rules those with the highest win; none: 0.
/// Days and dates are those on which it begins. Returns null when one of these cannot be understood.
function parsed(raw) {
    const rule = {
        slides: raw.slides !== undefined ? [].concat(raw.slides) : raw.slide !== undefined ? [raw.slide] : [],
        days: daySet(raw.days),
        from: dateBound(raw.from),
        until: dateBound(raw.until),
        begin: seconds(raw.begin, 0),
        end: seconds(raw.end, daySeconds),
        priority: raw.priority === undefined ? 0 : Number(raw.priority)
    };
    const isUnderstood = rule.days && rule.from !== undefined && rule.until !== undefined
                         && isYearly(rule.from, rule.until)
        && rule.begin < daySeconds && rule.end <= daySeconds && isFinite(rule.priority);
    return isUnderstood ? rule : null;
}

/// Positions in `rules` of the active ones with the highest priority; null entries are skipped.
function winners(rules, date) {
    const when = moment(date);
    let active = [];
    let highest = -Infinity;
    rules.forEach(function(rule, i) {
        if (rule === null || !isActive(rule, when))
            return;
        if (rule.priority > highest)
            active = [];
        highest = Math.max(highest, rule.priority);
        if (rule.priority === highest)
            active.push(i);
    });
    return active;
}

/// The moment, in milliseconds as Date.now() counts, at which the winners after `date` are no longer those at `date`;
/// NaN when they stay.
function nextChange(rules, date) {
    const now = winners(rules, date).join();
    const candidates = boundaries(rules, date).filter(function(time) { return time > date.getTime(); });
    candidates.sort(function(a, b) { return a - b; });
    for (let i = 0; i < candidates.length; ++i) {
        if (winners(rules, new Date(candidates[i])).join() !== now)
            return candidates[i];
    }
    return NaN;
}

/// Whether a rule begins or ends within a minute.
function needsSeconds(rule) {
    return rule !== null && (rule.begin % 60 !== 0 || rule.end % 60 !== 0);
}

// What the wall shows at `date`: today, yesterday and the second of the day.
function moment(date) {
    const midday = new Date(date.getFullYear(), date.getMonth(), date.getDate(), 12);
    return {
        today: day(midday),
        yesterday: day(new Date(midday.getFullYear(), midday.getMonth(), midday.getDate() - 1, 12)),
        second: date.getHours() * 3600 + date.getMinutes() * 60 + date.getSeconds()
    };
}

function day(date) {
    return { year: date.getFullYear(), date: (date.getMonth() + 1) * 100 + date.getDate(),
             weekday: (date.getDay() + 6) % 7 + 1 };
}

function isActive(rule, when) {
    if (rule.begin < rule.end)
        return beginsOn(rule, when.today) && when.second >= rule.begin && when.second < rule.end;
    return (beginsOn(rule, when.today) && when.second >= rule.begin)
        || (beginsOn(rule, when.yesterday) && when.second < rule.end);
}

function beginsOn(rule, day) {
    return rule.days[day.weekday] === true && isBetween(rule.from, day, rule.until);
}

// Bounds without year are compared within the year, across its end when the first is the later one.
function isBetween(from, day, until) {
    const after = from === null || order(day, from) >= 0;
    const before = until === null || order(day, until) <= 0;
    const isAcrossNewYear = from !== null && until !== null && from.year === null && from.date > until.date;
    return isAcrossNewYear ? after || before : after && before;
}

function order(day, bound) {
    return bound.year === null || bound.year === day.year ? day.date - bound.date : day.year - bound.year;
}

function isYearly(from, until) {
    return from === null || until === null || (from.year === null) === (until.year === null);
}

const weekdays = ["mo", "tu", "we", "th", "fr", "sa", "su"];

// Set of ISO day numbers as an object; null when `days` cannot be understood.
function daySet(days) {
    const set = {};
    if (days === undefined || days === null || days === "")
        days = "mo-su";
    const parts = typeof days === "string" ? days.toLowerCase().split(/[\s,;]+/) : [].concat(days);
    const isUnderstood = parts.every(function(part) {
        const ends = typeof part === "string" ? part.split("-").map(weekday) : [Number(part), Number(part)];
        const first = ends[0];
        const last = ends[ends.length - 1];
        if (!(first >= 1 && first <= 7 && last >= 1 && last <= 7 && ends.length <= 2))
            return false;
        for (let i = first; ; i = i % 7 + 1) {
            set[i] = true;
            if (i === last)
                return true;
        }
    });
    return isUnderstood ? set : null;
}

function weekday(name) {
    return /^\d$/.test(name) ? Number(name) : weekdays.indexOf(name.slice(0, 2)) + 1;
}

// { year (null: every year), date (month * 100 + day) }; null for none; undefined when not understood.
function dateBound(text) {
    if (text === undefined || text === null || text === "")
        return null;
    const match = /^(?:(\d{4})-)?(\d\d?)-(\d\d?)$/.exec(String(text));
    if (!match || match[2] < 1 || match[2] > 12 || match[3] < 1 || match[3] > 31)
        return undefined;
    return { year: match[1] === undefined || match[1] === "" ? null : Number(match[1]),
             date: match[2] * 100 + Number(match[3]) };
}

// Second of the day; NaN when not understood.
function seconds(text, fallback) {
    if (text === undefined || text === null || text === "")
        return fallback;
    const match = /^(\d\d?):(\d\d)(?::(\d\d))?$/.exec(String(text));
    if (!match || match[2] > 59 || match[3] > 59)
        return NaN;
    return match[1] * 3600 + match[2] * 60 + Number(match[3] || 0);
}

// All moments around `date` and around the rules' bounds at which something may change.
function boundaries(rules, date) {
    const times = [];
    const known = rules.filter(function(rule) { return rule !== null; });
    daysToLookAt(known, date).forEach(function(start) {
        addClockJump(times, start);
        known.forEach(function(rule) {
            addTime(times, start, rule.begin);
            addTime(times, start, rule.end);
        });
        addTime(times, start, 0);
    });
    return times;
}

// Middays of the days to look at: a week and what touches it, and the same from each bound on.
function daysToLookAt(rules, date) {
    const days = {};
    function addWeek(year, month, day) {
        for (let i = -1; i <= 8; ++i) {
            const midday = new Date(year, month, day + i, 12);
            days[midday.getTime()] = midday;
        }
    }
    addWeek(date.getFullYear(), date.getMonth(), date.getDate());
    rules.forEach(function(rule) {
        [rule.from, rule.until].forEach(function(bound) {
            if (bound === null)
                return;
            const years = bound.year === null ? [date.getFullYear(), date.getFullYear() + 1] : [bound.year];
            years.forEach(function(year) { addWeek(year, Math.floor(bound.date / 100) - 1, bound.date % 100); });
        });
    });
    return Object.keys(days).map(function(key) { return days[key]; });
}

// The wall clock's `second` on the day of `midday`; in case the clock is put back, also an hour to either side.
function addTime(times, midday, second) {
    const time = new Date(midday.getFullYear(), midday.getMonth(), midday.getDate(), 0, 0, second).getTime();
    times.push(time, time - 3600000, time + 3600000);
}

// The moment at which the clock is put forward or back between the midday before and `midday`.
function addClockJump(times, midday) {
    let early = new Date(midday.getFullYear(), midday.getMonth(), midday.getDate() - 1, 12).getTime();
    let late = midday.getTime();
    const offset = new Date(early).getTimezoneOffset();
    if (offset === midday.getTimezoneOffset())
        return;
    while (late - early > 1) {
        const middle = Math.floor((early + late) / 2);
        if (new Date(middle).getTimezoneOffset() === offset)
            early = middle;
        else
            late = middle;
    }
    times.push(late);
}
