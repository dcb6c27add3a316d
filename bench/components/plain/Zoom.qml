// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A picture that slowly grows and shrinks.
Item {
    id: root

    property alias source: picture.source
    property real from: 1
    property real to: 1.08
    property int duration: 14000

    clip: true

    Image {
        id: picture
        anchors.fill: parent
        fillMode: Image.PreserveAspectCrop
        mipmap: true
    }

    SequentialAnimation {
        running: root.visible
        loops: Animation.Infinite

        NumberAnimation {
            target: picture
            property: "scale"
            from: root.from
            to: root.to
            duration: root.duration
            easing.type: Easing.InOutSine
        }
        NumberAnimation {
            target: picture
            property: "scale"
            to: root.from
            duration: root.duration
            easing.type: Easing.InOutSine
        }
    }
}
