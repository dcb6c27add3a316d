// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

ComponentCase {
    id: test
    name: "Appearance"

    function rows() {
        return [
            { tag: "LiveText", open: "LiveText { backColor: 'red'; text: '';" },
            { tag: "LiveImage", open: "LiveImage { backColor: 'red'; source: '';" }
        ];
    }

    function show(data, extra) {
        return make("Rectangle { width: 400; height: 300; color: 'white'; property Item item: children[0]; "
                    + data.open + " anchors.fill: parent; " + extra + "} }");
    }

    function center(ground) {
        return colorAt(ground, 200, 150);
    }

    function test_entersAndStays_data() {
        return rows();
    }
    function test_entersAndStays(data) {
        var ground = show(data, "enterTime: 300");
        compare(center(ground), "#ffffff");
        tryVerify(function() { return center(ground) === "#ff0000"; });
        wait(300);
        compare(center(ground), "#ff0000");
    }

    function test_exits_data() {
        return rows();
    }
    function test_exits(data) {
        var ground = show(data, "exitTime: 1500");
        tryVerify(function() { return center(ground) === "#ff0000"; });
        tryVerify(function() { return center(ground) === "#ffffff"; });
    }

    function test_entersAgainWithItsSlide_data() {
        return rows();
    }
    function test_entersAgainWithItsSlide(data) {
        var show = make("Slideshow { width: 400; height: 300; color: 'white'; running: false; transTime: 0; Slide {} Slide { "
                        + data.open + " anchors.fill: parent } } }");
        for (var round = 0; round < 2; ++round) {
            show.next();
            tryCompare(show, "currentIndex", 1);
            compare(center(show), "#ffffff");
            tryVerify(function() { return center(show) === "#ff0000"; });
            show.next();
            tryCompare(show, "currentIndex", 0);
        }
    }

    function test_isThereInTheEditor_data() {
        return rows();
    }
    function test_isThereInTheEditor(data) {
        var ground = show(data, "property int element: 4; enterTime: 60000");
        tryVerify(function() { return center(ground) === "#ff0000"; }, 500);
    }

    function test_absurdTimesCountAsNone_data() {
        return rows();
    }
    function test_absurdTimesCountAsNone(data) {
        var ground = show(data, "enterTime: -1000; exitTime: -5");
        tryVerify(function() { return center(ground) === "#ff0000"; });
    }
}
