// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Turns its only child, a show with next() and slideShown(), as often and as fast as it can, and logs
/// "made NAME COUNT" now and then, at last "done".
Rectangle {
    id: root

    default property alias content: stage.data
    readonly property Item show: stage.children[0]
    property string name
    property int total: 10000
    property int turned: 0

    width: 640
    height: 360

    Item {
        id: stage
        anchors.fill: parent
    }

    Connections {
        target: root.show
        function onSlideShown() {
            if (++root.turned % Math.floor(root.total / 40) === 0)
                console.info("made " + root.name + " " + root.turned);
            if (root.turned < root.total)
                pause.start();
            else
                console.info("done");
        }
    }

    Timer {
        id: pause
        interval: 1
        onTriggered: root.show.next()
    }

    Timer {
        interval: 1000
        running: true
        onTriggered: root.show.next()
    }
}
