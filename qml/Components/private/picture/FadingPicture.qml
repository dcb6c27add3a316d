// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A picture with rounded corners that fades over to a new source once that is loaded.
Item {
    id: root

    property var source: ""
    property real radius: 0
    property int fadeTime: 700
    property RoundedPicture front: pictureA
    readonly property RoundedPicture back: front === pictureA ? pictureB : pictureA

    function fadeWhenLoaded() {
        if (root.back.source != root.source || root.back.status === Image.Loading)
            return;
        root.front = root.back;
        root.front.z = 1;
        root.back.z = 0;
        fade.restart();
    }

    onSourceChanged: {
        fade.complete();
        root.back.source = root.source;
        fadeWhenLoaded();
    }

    NumberAnimation {
        id: fade
        target: root.front
        property: "opacity"
        from: 0
        to: 1
        duration: Math.max(0, root.fadeTime)
        onFinished: root.back.source = ""
    }

    RoundedPicture {
        id: pictureA
        anchors.fill: parent
        radius: root.radius
        onStatusChanged: root.fadeWhenLoaded()
    }

    RoundedPicture {
        id: pictureB
        anchors.fill: parent
        radius: root.radius
        onStatusChanged: root.fadeWhenLoaded()
    }
}
