// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/clock/calendar.js" as Calendar

ComponentCase {
    id: test
    name: "Calendar"

    // Days of the month before, of the month, and of the month after.
    function test_month_data() {
        return [
            { tag: "from Monday", year: 2026, month: 10, first: 1, parts: [6, 30, 6] },
            { tag: "from Sunday", year: 2026, month: 10, first: 0, parts: [0, 30, 5] },
            { tag: "from Saturday", year: 2026, month: 10, first: 6, parts: [1, 30, 4] },
            { tag: "four weeks", year: 2027, month: 1, first: 1, parts: [0, 28, 0] },
            { tag: "leap", year: 2028, month: 1, first: 1, parts: [1, 29, 5] },
            { tag: "century", year: 2100, month: 1, first: 1, parts: [0, 28, 0] },
            { tag: "December", year: 2026, month: 11, first: 1, parts: [1, 31, 3] }
        ];
    }
    function test_month(data) {
        var days = Calendar.month(data.year, data.month, data.first);
        var first = days.findIndex(function(day) { return day.isInMonth; });
        var length = days.filter(function(day) { return day.isInMonth; }).length;
        compare([first, length, days.length - first - length], data.parts);
        for (var i = 0; i < length; ++i)
            compare(days[first + i].date, i + 1);
        if (first > 0)
            compare(days[first - 1].date, new Date(data.year, data.month, 0).getDate());
    }

    function cells(calendar) {
        var found = [];
        function collect(item) {
            if (item.isMarked !== undefined)
                found.push(item);
            for (var i = 0; i < item.children.length; ++i)
                collect(item.children[i]);
        }
        collect(calendar);
        return found;
    }

    function test_words_data() {
        return [
            { tag: "en_GB", first: "Mon" },
            { tag: "en_US", first: "Sun" },
            { tag: "de_DE", first: "Mo" },
            { tag: "ar_EG", first: "السبت" }
        ];
    }
    function test_words(data) {
        var calendar = make("BasicCalendar { localeName: '" + data.tag + "' }");
        compare(cells(calendar)[0].text, data.first);
    }

    function test_todayIsMarkedAndMovesOn() {
        var calendar = make("BasicCalendar { localeName: 'en_GB' }");
        calendar.today = new Date(2026, 11, 31, 23, 59);
        var marked = cells(calendar).filter(function(cell) { return cell.isMarked; });
        compare(marked.length, 1);
        compare(marked[0].text, "31");
        calendar.today = new Date(2027, 0, 1, 0, 0);
        marked = cells(calendar).filter(function(cell) { return cell.isMarked; });
        compare(marked.length, 1);
        compare(marked[0].text, "1");
    }
}
