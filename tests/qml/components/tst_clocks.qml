// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/clock/clock.js" as Clock

ComponentCase {
    id: test
    name: "Clocks"

    function test_period_data() {
        return [
            { tag: "hh:mm", period: 60000 },
            { tag: "hh:mm:ss", period: 1000 },
            { tag: "h:mm AP", period: 60000 },
            { tag: "dddd d MMMM", period: 60000 },
            { tag: "'seconds' hh:mm", period: 60000 },
            { tag: "hh 'o''clock' s", period: 1000 },
            { tag: "ss.zzz", period: 100 },
            { tag: "hh 'unfinished ss", period: 60000 },
            { tag: "", period: 60000 }
        ];
    }
    function test_period(data) {
        compare(Clock.period(data.tag), data.period);
    }

    function test_untilNext_data() {
        return [
            { tag: "on the second", now: 5000, period: 1000, wait: 1000 },
            { tag: "in between", now: 5001, period: 1000, wait: 999 },
            { tag: "just before", now: 5999, period: 1000, wait: 1 },
            { tag: "minute", now: 61500, period: 60000, wait: 58500 },
            { tag: "before the epoch", now: -1, period: 1000, wait: 1 }
        ];
    }
    function test_untilNext(data) {
        compare(Clock.untilNext(data.now, data.period), data.wait);
    }

    function face(clock) {
        for (var i = 0; i < clock.children.length; ++i) {
            if (clock.children[i].text !== undefined)
                return clock.children[i];
        }
    }

    function test_digitalFormats_data() {
        return [
            { tag: "time", format: "hh:mm", locale: "en_GB", pattern: /^\d\d:\d\d$/ },
            { tag: "English date", format: "dddd", locale: "en_GB", pattern: /^(Mon|Tues|Wednes|Thurs|Fri|Satur|Sun)day$/ },
            { tag: "German date", format: "dddd", locale: "de_DE", pattern: /^(Montag|Dienstag|Mittwoch|Donnerstag|Freitag|Samstag|Sonntag)$/ },
            { tag: "quoted", format: "'at' h", locale: "C", pattern: /^at \d+$/ },
            { tag: "empty", format: "", locale: "en_GB", pattern: /^/ },
            { tag: "unknown language", format: "mm", locale: "xx_nonsense", pattern: /^\d\d$/ }
        ];
    }
    function test_digitalFormats(data) {
        var clock = make("DigitalClock { format: \"" + data.format + "\"; localeName: '" + data.locale + "' }");
        verify(data.pattern.test(face(clock).text), face(clock).text);
    }

    function test_ticksOnTheSecond() {
        var clock = make("DigitalClock { format: 'ss' }");
        var label = face(clock);
        for (var i = 0; i < 3; ++i) {
            var last = label.text;
            tryVerify(function() { return label.text !== last; }, 2500);
            verify(Date.now() % 1000 < 500, "changed " + Date.now() % 1000 + " ms after the second");
        }
    }

    function test_hiddenClockSleeps() {
        var clock = make("DigitalClock { format: 'ss'; visible: false }");
        var last = face(clock).text;
        wait(1100);
        compare(face(clock).text, last);
        clock.visible = true;
        compare(face(clock).text, Qt.formatTime(new Date(), "ss"));
    }

    function test_absurdSizes() {
        var clock = make("DigitalClock { pixelSize: -20; width: -5; height: 0 }");
        clock.pixelSize = 100000;
        waitForRendering(clock, 200);
    }
}
