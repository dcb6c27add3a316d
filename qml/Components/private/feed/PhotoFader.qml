// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../picture"
import "../picture/media.js" as Media

/// Shows pictures one after the other, each fading in over the one before once it is complete. A picture that cannot be
/// loaded is passed over; while none can, the one that is there stays.
Item {
    id: root

    /// Addresses of the pictures.
    property var sources: []
    /// Milliseconds that a picture stays.
    property int showTime: 8000
    property bool running: false
    /// Position of the picture that is shown, -1 before the first one.
    property int currentIndex: -1

    property int wanted: -1
    // Pictures in a row that could not be loaded.
    property int misses: 0
    property Picture front: pictureA
    readonly property Picture back: front === pictureA ? pictureB : pictureA

    function next() {
        if (!root.running || root.sources.length === 0 || fade.running)
            return;
        root.wanted = (root.wanted + 1) % root.sources.length;
        root.back.address = Media.address(root.sources[root.wanted]);
        if (root.back.status === Image.Ready)
            show();
    }

    function follow(picture) {
        if (picture !== root.back || fade.running)
            return;
        if (picture.status === Image.Ready)
            show();
        else if (picture.status === Image.Error)
            Qt.callLater(pass);
    }

    function show() {
        root.misses = 0;
        root.back.z = 1;
        root.front.z = 0;
        fade.restart();
    }

    function pass() {
        root.back.address = "";
        if (++root.misses < root.sources.length)
            next();
    }

    function takeOver() {
        const old = root.front;
        root.front = root.back;
        root.currentIndex = root.wanted;
        old.opacity = 0;
        old.address = "";
    }

    onSourcesChanged: {
        root.wanted = -1;
        root.misses = 0;
        if (root.currentIndex < 0)
            next();
    }
    onRunningChanged: {
        if (root.currentIndex < 0)
            next();
    }

    Picture {
        id: pictureA
        anchors.fill: parent
        opacity: 0
        fillMode: Image.PreserveAspectCrop
        onStatusChanged: root.follow(pictureA)
    }

    Picture {
        id: pictureB
        anchors.fill: parent
        opacity: 0
        fillMode: Image.PreserveAspectCrop
        onStatusChanged: root.follow(pictureB)
    }

    NumberAnimation {
        id: fade
        target: root.back
        property: "opacity"
        to: 1
        duration: 1200
        easing.type: Easing.InOutQuad
        onFinished: root.takeOver()
    }

    Timer {
        interval: Math.max(2000, root.showTime)
        running: root.running && root.sources.length > 0
        repeat: true
        onTriggered: {
            root.misses = 0;
            root.next();
        }
    }
}
