// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/clock"
import "private/show/schedule.js" as Rules

/// A slideshow whose slides are on at set times. Each entry of `schedules` names slides and when they are on (see
/// private/show/schedule.js). The slides of the active entries with the highest priority take turns; in the gaps
/// between, the slides that no entry names. Looked at again at every full minute, so that it follows when the clock is
/// set.
Slideshow {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Schedule {
    width: 960
    height: 540
    color: '#17212b'
    transType: 'fade'
    schedules: [
        { name: 'Morning', slide: 0, begin: '06:00', end: '11:00' },
        { name: 'Midday', slide: 1, begin: '11:00', end: '17:00', days: 'mon-fri' },
        { name: 'Evening', slide: 2, begin: '17:00', end: '06:00' }
    ]
}"

    /// Objects with the members slide or slides, and any of name, days, from, until, begin, end, priority.
    property var schedules: [
        { name: "Morning", slide: 0, begin: "06:00", end: "11:00" },
        { name: "Midday", slide: 1, begin: "11:00", end: "17:00", days: "mon-fri" },
        { name: "Evening", slide: 2, begin: "17:00", end: "06:00" }
    ]
    /// The entry that is on, null in a gap; the first one when several share the time.
    property var current: null
    /// The entry that is on after the next change, null for a gap or when nothing changes any more, and the moment of
    /// that change (an invalid date for never).
    property var next: null
    property date nextChange: new Date(NaN)

    readonly property var rules: schedules.map(function(schedule) { return Rules.parsed(schedule); })
    // Positions of the winning entries, as text, the moment for which they were found, and how long they hold.
    property string winning: "none"
    property double lookedAt: 0
    property double validUntil: 0

    function lookUp(date) {
        const now = date.getTime();
        const won = Rules.winners(root.rules, date);
        const isKnown = won.join() === root.winning && now >= root.lookedAt && now < root.validUntil;
        root.lookedAt = now;
        if (isKnown)
            return;
        root.winning = won.join();
        root.current = won.length > 0 ? root.schedules[won[0]] : null;
        root.turnOrder = won.length > 0 ? slidesOf(won) : unnamedSlides();
        lookAhead(date);
    }

    function lookAhead(date) {
        const change = Rules.nextChange(root.rules, date);
        const won = isNaN(change) ? [] : Rules.winners(root.rules, new Date(change));
        root.validUntil = isNaN(change) ? date.getTime() + 86400000 : change;
        root.nextChange = new Date(change);
        root.next = won.length > 0 ? root.schedules[won[0]] : null;
    }

    // Positions of the slides that the entries at `places` name.
    function slidesOf(places) {
        const positions = [];
        places.forEach(function(place) {
            (root.rules[place] ? root.rules[place].slides : []).forEach(function(name) {
                const position = typeof name === "number" ? name
                                                          : root.slides.findIndex(slide => slide.objectName === name);
                if (root.slides[position] !== undefined && positions.indexOf(position) < 0)
                    positions.push(position);
            });
        });
        return positions;
    }

    function unnamedSlides() {
        const named = slidesOf(root.rules.map(function(rule, i) { return i; }));
        return root.slides.map(function(slide, i) { return i; }).filter(function(i) { return named.indexOf(i) < 0; });
    }

    function renew() {
        root.winning = "none";
        lookUp(new Date());
    }

    kind: qsTr("Schedule")
    onSlidesChanged: renew()
    onRulesChanged: {
        rules.forEach(function(rule, i) {
            if (rule === null)
                console.warn(log, "schedules, entry " + i + " cannot be understood: "
                             + JSON.stringify(root.schedules[i]));
        });
        renew();
    }
    Component.onCompleted: editor = Qt.createComponent("ScheduleEditor.qml")

    LoggingCategory {
        id: log
        name: "nuvex.components"
    }

    Ticker {
        period: root.rules.some(Rules.needsSeconds) ? 1000 : 60000
        running: root.visible
        onTimeChanged: root.lookUp(time)
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Schedule"
        }
    }
}
