// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Thirty slides, each made for its turn and destroyed after it.
Loader {
    id: root

    property url picture
    property url clip
    property int current: 0
    readonly property var kinds: [words, photo, both]

    signal slideShown(int index)

    function next() {
        current = (current + 1) % 30;
        sourceComponent = null;
        sourceComponent = current === 0 ? video : kinds[current % 3];
        turned.start();
    }

    width: 640
    height: 360

    Timer {
        id: turned
        interval: 30
        onTriggered: root.slideShown(root.current)
    }

    Component {
        id: words

        Headline {
            text: "A slide of words"
        }
    }

    Component {
        id: photo

        Image {
            source: root.picture
            asynchronous: true
            cache: false
        }
    }

    Component {
        id: both

        Image {
            source: root.picture
            asynchronous: true
            cache: false

            Plate {
                width: 300
                height: 60
                text: "A plate"
            }
        }
    }

    Component {
        id: video

        Clip {
            source: root.clip
            autoPlay: true
        }
    }
}
