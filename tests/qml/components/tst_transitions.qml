// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/Components/private/show/stage.js" as Stage
import "qrc:/Nuvex/Components/private/show/transitions.js" as Transitions

TestCase {
    name: "Transitions"

    function rows() {
        return Transitions.names.map(function(name) { return { tag: name }; });
    }

    // How much of a 100 x 50 frame a slide covers, roughly: 0 is nothing, 1 all of it.
    function cover(at) {
        var x = Math.max(0, 1 - Math.abs(at.x) / 100);
        var y = Math.max(0, 1 - Math.abs(at.y) / 50);
        return x * y * at.opacity * at.reveal;
    }

    function test_endsAreExact_data() {
        return rows();
    }
    function test_endsAreExact(data) {
        var begin = Transitions.placement(data.tag, 0, 100, 50);
        var end = Transitions.placement(data.tag, 1, 100, 50);
        compare(cover(begin.outgoing), 1);
        fuzzyCompare(cover(end.incoming), 1, 1e-9);
        compare(end.incoming.scale, 1);
        if (data.tag === "cut")
            return;
        compare(cover(begin.incoming), 0);
        verify(data.tag === "cover" || cover(end.outgoing) === 0);
    }

    // Between two full pictures the ground must not show through: one of them covers, or both share the frame.
    function test_groundStaysCovered_data() {
        return rows();
    }
    function test_groundStaysCovered(data) {
        for (var step = 0; step <= 100; ++step) {
            var at = Transitions.placement(data.tag, step / 100, 100, 50);
            var moves = at.incoming.x !== 0 || at.incoming.y !== 0;
            var covered = moves ? cover(at.incoming) + cover(at.outgoing) : Math.max(cover(at.incoming), cover(at.outgoing));
            verify(covered > 0.999, "at " + step + " %: " + covered);
        }
    }

    function test_unknownNameIsGentle() {
        compare(Transitions.known("explode"), "fade");
        compare(Transitions.known("wipe"), "wipe");
        verify(Transitions.names.length >= 8);
    }

    function test_timeOfSlide_data() {
        return [
            { tag: "given", duration: 3000, transition: 800, time: 3000 },
            { tag: "zero", duration: 0, transition: 800, time: 5000 },
            { tag: "negative", duration: -4, transition: -1, time: 5000 },
            { tag: "shorter than its transition", duration: 10, transition: 800, time: 1000 }
        ];
    }
    function test_timeOfSlide(data) {
        compare(Stage.timeOf({ duration: data.duration }, data.transition), data.time);
    }
}
