// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/show/schedule.js" as Rules

ComponentCase {
    id: test
    name: "Schedule"

    function use(zone) {
        fixture.setTimeZone(zone);
        Date.timeZoneUpdated();
    }

    function initTestCase() {
        use("Europe/Berlin");
        compare([new Date(2026, 0, 1).getTimezoneOffset(), new Date(2026, 6, 1).getTimezoneOffset()], [-60, -120]);
    }

    function cleanupTestCase() {
        use("UTC");
    }

    // "2026-03-29 01:30" on the wall clock; a trailing "+" is the second time in the hour that comes twice.
    function at(text) {
        var n = text.match(/\d+/g).map(Number);
        var date = new Date(n[0], n[1] - 1, n[2], n[3], n[4], n[5] || 0);
        var isSecond = text.slice(-1) === "+";
        var earlier = new Date(date.getTime() - 3600000);
        var later = new Date(date.getTime() + 3600000);
        if (isSecond)
            return later.getHours() === date.getHours() ? later : date;
        return earlier.getHours() === date.getHours() ? earlier : date;
    }

    function wall(time) {
        return isNaN(time) ? "never" : Qt.formatDateTime(new Date(time), "yyyy-MM-dd hh:mm:ss");
    }

    function parsed(raws) {
        return raws.map(function(raw) { return Rules.parsed(raw); });
    }

    function test_active_data() {
        var night = { begin: "22:00", end: "02:00" };
        var fridayNight = { begin: "22:00", end: "02:00", days: "fri" };
        var office = { begin: "08:00", end: "17:00", days: "mon-fri" };
        var xmas = { from: "12-20", until: "01-06" };
        var march = { from: "2026-03-01", until: "2026-03-31" };
        var marchNights = { from: "2026-03-01", until: "2026-03-31", begin: "22:00", end: "02:00" };
        return [
            { tag: "begin is in", rule: office, time: "2026-11-23 08:00", active: true },
            { tag: "second before", rule: office, time: "2026-11-23 07:59:59", active: false },
            { tag: "end is out", rule: office, time: "2026-11-23 17:00", active: false },
            { tag: "last second", rule: office, time: "2026-11-23 16:59:59", active: true },
            { tag: "Saturday", rule: office, time: "2026-11-28 10:00", active: false },
            { tag: "Friday", rule: office, time: "2026-11-27 10:00", active: true },
            { tag: "before midnight", rule: night, time: "2026-11-23 23:59:59", active: true },
            { tag: "midnight", rule: night, time: "2026-11-24 00:00", active: true },
            { tag: "after midnight", rule: night, time: "2026-11-24 01:59:59", active: true },
            { tag: "end of night", rule: night, time: "2026-11-24 02:00", active: false },
            { tag: "night begins on Friday", rule: fridayNight, time: "2026-11-27 22:00", active: true },
            { tag: "and ends on Saturday", rule: fridayNight, time: "2026-11-28 01:00", active: true },
            { tag: "not the night to Friday", rule: fridayNight, time: "2026-11-27 01:00", active: false },
            { tag: "not Saturday's", rule: fridayNight, time: "2026-11-28 22:00", active: false },
            { tag: "all day", rule: {}, time: "2026-11-28 00:00", active: true },
            { tag: "same begin and end", rule: { begin: "10:00", end: "10:00" }, time: "2026-11-28 09:59", active: true },
            { tag: "24:00", rule: { begin: "20:00", end: "24:00" }, time: "2026-11-28 23:59:59", active: true },
            { tag: "24:00 ends", rule: { begin: "20:00", end: "24:00" }, time: "2026-11-29 00:00", active: false },
            { tag: "first date", rule: march, time: "2026-03-01 00:00", active: true },
            { tag: "last date", rule: march, time: "2026-03-31 23:59:59", active: true },
            { tag: "day after", rule: march, time: "2026-04-01 00:00", active: false },
            { tag: "other year", rule: march, time: "2027-03-10 00:00", active: false },
            { tag: "last night reaches over", rule: marchNights, time: "2026-04-01 01:00", active: true },
            { tag: "first night does not", rule: marchNights, time: "2026-03-01 01:00", active: false },
            { tag: "yearly, December", rule: xmas, time: "2031-12-20 12:00", active: true },
            { tag: "yearly, January", rule: xmas, time: "2031-01-06 12:00", active: true },
            { tag: "yearly, out", rule: xmas, time: "2031-01-07 00:00", active: false },
            { tag: "leap day", rule: { from: "02-29", until: "02-29" }, time: "2028-02-29 12:00", active: true },
            { tag: "only until", rule: { until: "2026-01-01" }, time: "2025-06-01 12:00", active: true },
            { tag: "day numbers", rule: { days: [7, 1] }, time: "2026-11-29 12:00", active: true },
            { tag: "range over Sunday", rule: { days: "sat-mon" }, time: "2026-11-30 12:00", active: true },
            { tag: "range over Sunday, out", rule: { days: "Saturday-Monday" }, time: "2026-12-01 12:00", active: false },
            { tag: "seconds", rule: { begin: "10:00:30", end: "10:00:31" }, time: "2026-12-01 10:00:30", active: true },
            // The clock jumps from 02:00 to 03:00 on 29 March, and back from 03:00 to 02:00 on 25 October.
            { tag: "begins in the skipped hour", rule: { begin: "02:30", end: "05:00" }, time: "2026-03-29 03:00", active: true },
            { tag: "before the skipped hour", rule: { begin: "02:30", end: "05:00" }, time: "2026-03-29 01:59:59", active: false },
            { tag: "ends in the skipped hour", rule: { begin: "01:00", end: "02:30" }, time: "2026-03-29 03:00", active: false },
            { tag: "repeated hour, first", rule: { begin: "02:15", end: "02:45" }, time: "2026-10-25 02:30", active: true },
            { tag: "repeated hour, second", rule: { begin: "02:15", end: "02:45" }, time: "2026-10-25 02:30+", active: true },
            { tag: "repeated hour, between", rule: { begin: "02:15", end: "02:45" }, time: "2026-10-25 02:10+", active: false },
            { tag: "over the repeated hour", rule: { begin: "23:00", end: "06:00" }, time: "2026-10-25 02:59+", active: true }
        ];
    }
    function test_active(data) {
        compare(Rules.winners(parsed([data.rule]), at(data.time)).length === 1, data.active);
    }

    function test_priorities_data() {
        var rules = [
            { begin: "08:00", end: "20:00" },
            { begin: "10:00", end: "12:00", priority: 5 },
            { begin: "11:00", end: "13:00", priority: 5 },
            { begin: "00:00", end: "24:00", priority: -1 }
        ];
        return [
            { tag: "lowest when alone", rules: rules, time: "2026-11-23 07:00", won: [3] },
            { tag: "usual", rules: rules, time: "2026-11-23 09:00", won: [0] },
            { tag: "higher wins", rules: rules, time: "2026-11-23 10:30", won: [1] },
            { tag: "equals share", rules: rules, time: "2026-11-23 11:30", won: [1, 2] },
            { tag: "gap", rules: rules.slice(0, 3), time: "2026-11-23 21:00", won: [] }
        ];
    }
    function test_priorities(data) {
        compare(Rules.winners(parsed(data.rules), at(data.time)), data.won);
    }

    function test_nextChange_data() {
        var office = { begin: "08:00", end: "17:00", days: "mon-fri" };
        var skipped = { begin: "02:30", end: "05:00" };
        var twice = { begin: "02:15", end: "02:45" };
        return [
            { tag: "begin", rule: office, time: "2026-11-23 06:00", change: "2026-11-23 08:00:00" },
            { tag: "end", rule: office, time: "2026-11-23 08:00", change: "2026-11-23 17:00:00" },
            { tag: "over the weekend", rule: office, time: "2026-11-27 17:00", change: "2026-11-30 08:00:00" },
            { tag: "midnight is no change", rule: {}, time: "2026-11-27 17:00", change: "never" },
            { tag: "far date", rule: { from: "2027-08-01" }, time: "2026-11-27 17:00", change: "2027-08-01 00:00:00" },
            { tag: "last day", rule: { until: "2026-12-24" }, time: "2026-11-27 17:00", change: "2026-12-25 00:00:00" },
            { tag: "past", rule: { until: "2020-12-24" }, time: "2026-11-27 17:00", change: "never" },
            { tag: "next year's", rule: { from: "02-10", until: "02-12" }, time: "2026-11-27 17:00", change: "2027-02-10 00:00:00" },
            { tag: "spring jump", rule: skipped, time: "2026-03-29 01:00", change: "2026-03-29 03:00:00" },
            { tag: "autumn, second begin", rule: twice, time: "2026-10-25 02:50", change: "2026-10-25 02:15:00" },
            { tag: "autumn, over", rule: twice, time: "2026-10-25 02:50+", change: "2026-10-26 02:15:00" }
        ];
    }
    function test_nextChange(data) {
        compare(wall(Rules.nextChange(parsed([data.rule]), at(data.time))), data.change);
    }

    // Whatever the rules, nothing changes before the announced moment, and something does at it.
    function test_nextChangeHolds_data() {
        return [{ tag: "Europe/Berlin" }, { tag: "America/New_York" }, { tag: "Australia/Lord_Howe" }, { tag: "Asia/Kathmandu" }];
    }
    function test_nextChangeHolds(data) {
        use(data.tag);
        var rules = parsed([
            { begin: "08:00", end: "17:00", days: "mon-fri" },
            { begin: "22:00", end: "02:15", days: "fri, sat", priority: 2 },
            { begin: "01:45", end: "02:45", priority: 1 }
        ]);
        ["2026-03-07", "2026-03-28", "2026-04-04", "2026-10-03", "2026-10-24", "2026-10-31"].forEach(function(day) {
            var time = at(day + " 12:00").getTime();
            var end = time + 2 * 86400000;
            while (time < end) {
                var won = Rules.winners(rules, new Date(time)).join();
                var change = Rules.nextChange(rules, new Date(time));
                verify(Rules.winners(rules, new Date(change)).join() !== won, "changes at " + wall(change));
                for (var t = time; t < Math.min(change, end); t += 300000)
                    compare(Rules.winners(rules, new Date(t)).join(), won, wall(t) + " is before " + wall(change));
                time = change;
            }
        });
        use("Europe/Berlin");
    }

    function test_notUnderstood_data() {
        return [
            { tag: "time", raw: { begin: "8 o'clock" } },
            { tag: "minute", raw: { begin: "08:60" } },
            { tag: "beyond the day", raw: { end: "24:01" } },
            { tag: "begin at 24:00", raw: { begin: "24:00" } },
            { tag: "day", raw: { days: "funday" } },
            { tag: "day number", raw: { days: [0] } },
            { tag: "month", raw: { from: "2026-13-01" } },
            { tag: "date", raw: { until: "yesterday" } },
            { tag: "mixed years", raw: { from: "2026-01-01", until: "12-31" } },
            { tag: "priority", raw: { priority: "high" } }
        ];
    }
    function test_notUnderstood(data) {
        verify(Rules.parsed(data.raw) === null);
        compare(Rules.winners([null], new Date()), []);
    }

    function makeSchedule(schedules) {
        var show = make("Schedule { transTime: 0; running: false; visible: false; schedules: []; Slide { objectName: 'a' } "
                        + "Slide { objectName: 'b' } Slide { objectName: 'c' } Slide { objectName: 'd' } }");
        show.schedules = schedules;
        return show;
    }

    function test_showFollowsTheRules() {
        var breakfast = { name: "Breakfast", slide: 0, begin: "06:00", end: "11:00" };
        var lunch = { name: "Lunch", slides: ["b", 2], begin: "11:00", end: "15:00" };
        var show = makeSchedule([breakfast, lunch]);

        show.lookUp(at("2026-11-23 07:00"));
        compare(show.currentSlide.objectName, "a");
        compare(show.current.name, "Breakfast");
        compare(show.next.name, "Lunch");
        compare(wall(show.nextChange), "2026-11-23 11:00:00");
        compare(show.turnOrder, [0]);

        show.lookUp(at("2026-11-23 11:00"));
        compare(show.currentSlide.objectName, "b");
        compare(show.turnOrder, [1, 2]);
        compare(show.next, null);

        show.lookUp(at("2026-11-23 16:00"));
        compare(show.currentSlide.objectName, "d", "the slide that no entry names fills the gap");
        compare(show.current, null);
        compare(show.next.name, "Breakfast");

        show.lookUp(at("2026-11-23 07:30"));
        compare(show.currentSlide.objectName, "a", "the clock was set back");
    }

    function test_gapWithoutSpareSlideIsEmpty() {
        var show = makeSchedule([{ slides: [0, 1, 2, 3], begin: "06:00", end: "11:00" }]);
        show.lookUp(at("2026-11-23 12:00"));
        compare(show.currentIndex, -1);
        verify(show.slides.every(function(slide) { return !slide.visible && slide.presence === 0; }));
        show.lookUp(at("2026-11-24 06:00"));
        compare(show.currentIndex, 0);
    }

    function test_oneBadEntryLeavesTheOthers() {
        ignoreWarning(/entry 0 cannot be understood/);
        var show = makeSchedule([{ slide: 1, begin: "noon" }, { slide: 2 }]);
        show.lookUp(at("2026-11-23 12:00"));
        compare(show.currentSlide.objectName, "c");
        expectWarnings(1, /entry 0 cannot be understood/);
    }
}
