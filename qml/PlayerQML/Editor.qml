// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The editing frame around a live document. It is copied into a project and loaded from there, so it stands alone.
Item {
    id: root

    // Root of the live document.
    property Item myfill: null
    property Item selection: null

    readonly property real smallestScale: 0.1
    readonly property real largestScale: 10

    // The user pressed on the document: `mouse` says where and with which button.
    signal itemsToEdit(var mouse)
    // An item was selected, or none (null).
    signal itemSelected(var item)

    // The selected item's place in the document. Reads each step of the way, so that bindings follow them all.
    function placeOf(item) {
        for (let step = item; step && step !== myfill; step = step.parent)
            [step.x, step.y, step.scale, step.rotation];
        return myfill.mapFromItem(item, 0, 0, item.width, item.height);
    }

    function zoom(notches) {
        const wanted = myfill.scale + myfill.scale * notches / 10;
        myfill.scale = Math.max(smallestScale, Math.min(largestScale, wanted));
    }

    onItemSelected: selection = item || null
    onMyfillChanged: {
        if (myfill)
            myfill.parent = stage;
    }

    Item {
        id: stage
        anchors.fill: parent
    }

    Rectangle {
        id: marker

        readonly property rect place: visible ? root.placeOf(root.selection) : Qt.rect(0, 0, 0, 0)

        parent: root.myfill || stage
        x: place.x
        y: place.y
        z: 1000
        width: place.width
        height: place.height
        visible: root.myfill !== null && root.selection !== null
        color: "transparent"
        border.width: 3 / (root.myfill ? root.myfill.scale : 1)
        border.color: "lavender"
    }

    PinchArea {
        anchors.fill: parent
        enabled: root.myfill !== null
        pinch.target: root.myfill
        pinch.minimumScale: root.smallestScale
        pinch.maximumScale: root.largestScale

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            drag.target: root.myfill
            onClicked: root.itemsToEdit(mouse)
            onWheel: root.zoom(wheel.angleDelta.y / 120)
        }
    }
}
