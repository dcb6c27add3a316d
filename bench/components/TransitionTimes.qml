// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import FrameTimes 1.0

/// Lets its only child, a show with next(), transType, turning and slideShown(), turn some times by every transition,
/// and logs the times between the frames of each: "frames NAME MS MS ...", at last "done".
Rectangle {
    id: root

    default property alias content: stage.data
    readonly property var names: ["fade", "slideLeft", "slideRight", "slideUp", "slideDown", "zoom", "wipe", "wipeDown",
                                  "cover"]
    readonly property Item show: stage.children[0]
    property int turns: 2
    property int done: 0

    function turn() {
        if (done === names.length * turns)
            return console.info("done");
        show.transType = names[Math.floor(done / turns)];
        show.next();
    }

    width: 1280
    height: 720

    Item {
        id: stage
        anchors.fill: parent
    }

    FrameTimes {
        id: times
    }

    Connections {
        target: root.show
        function onTurningChanged() {
            if (root.show.turning)
                times.take();
        }
        function onSlideShown() {
            console.info("frames " + root.show.transType + " " + times.take().join(" "));
            ++root.done;
            pause.start();
        }
    }

    Timer {
        id: pause
        interval: 500
        running: true
        onTriggered: root.turn()
    }
}
