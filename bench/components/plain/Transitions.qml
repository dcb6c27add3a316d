// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Two pictures that take turns by the transitions of a Slideshow, in the plainest way.
Item {
    id: root

    property var pictures: []
    property string transType: "fade"
    property int transTime: 1000
    readonly property bool turning: course.running
    property int current: 0
    property real progress: 0
    readonly property Item incoming: current ? second : first
    readonly property Item outgoing: current ? first : second
    readonly property var steps: ({
        fade: p => incoming.opacity = p,
        slideLeft: p => { incoming.x = width * (1 - p); outgoing.x = -width * p; },
        slideRight: p => { incoming.x = -width * (1 - p); outgoing.x = width * p; },
        slideUp: p => { incoming.y = height * (1 - p); outgoing.y = -height * p; },
        slideDown: p => { incoming.y = -height * (1 - p); outgoing.y = height * p; },
        zoom: p => { incoming.opacity = p; incoming.scale = 1.25 - 0.25 * p; },
        wipe: p => incoming.width = width * p,
        wipeDown: p => incoming.height = height * p,
        cover: p => { incoming.x = width * (1 - p); outgoing.x = -0.3 * width * p; }
    })

    signal slideShown(int index)

    function next() {
        current = 1 - current;
        incoming.z = 1;
        outgoing.z = 0;
        course.start();
    }

    function rest() {
        for (const place of [incoming, outgoing]) {
            place.x = place.y = 0;
            place.width = width;
            place.height = height;
        }
        outgoing.z = -1;
        slideShown(current);
    }

    component Place: Item {
        property alias source: picture.source

        width: root.width
        height: root.height
        clip: width < root.width || height < root.height

        Image {
            id: picture
            width: root.width
            height: root.height
            mipmap: true
        }
    }

    clip: true
    onProgressChanged: steps[transType](progress)

    Place {
        id: first
        source: root.pictures[0]
    }

    Place {
        id: second
        z: -1
        source: root.pictures[1]
    }

    NumberAnimation {
        id: course
        target: root
        property: "progress"
        from: 0
        to: 1
        duration: root.transTime
        easing.type: Easing.InOutCubic
        onFinished: root.rest()
    }
}
