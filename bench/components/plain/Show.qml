// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Shows its children in turn, each as long as `durations` says; the next one fades in over the one before.
Item {
    id: root

    default property alias content: stage.data
    property var durations: [9000, 9000]
    property int fadeTime: 1600
    property int offsetTime: 0
    property int current: 0
    property int before: 0
    property var turns: []

    function turn() {
        before = current;
        current = (current + 1) % turns.length;
        turns[before].z = 0;
        fade.target = turns[current];
        fade.target.z = 1;
        fade.target.opacity = 0;
        fade.target.visible = true;
        fade.restart();
        offsetTime = 0;
    }

    clip: true
    Component.onCompleted: {
        turns = Array.from(stage.children).filter(item => !(item instanceof Repeater));
        turns.slice(1).forEach(slide => slide.visible = false);
    }

    Item {
        id: stage
        anchors.fill: parent
    }

    NumberAnimation {
        id: fade
        property: "opacity"
        to: 1
        duration: root.fadeTime
        easing.type: Easing.InOutCubic
        onFinished: turns[root.before].visible = false
    }

    Timer {
        interval: root.durations[root.current] + root.offsetTime
        running: true
        repeat: true
        onTriggered: root.turn()
    }
}
