// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One component of the palette: its picture and name.
FocusScope {
    id: root

    property string type
    property string label
    /// What the tile is dragged over; without it a tap chooses.
    property Item dragArea: null

    signal chosen()

    objectName: "palette " + type
    height: picture.height + name.height + 1.5 * BGUI.Theme.unit
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: label
    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Keys.onSpacePressed: chosen()

    Rectangle {
        anchors.fill: parent
        anchors.margins: dp
        radius: BGUI.Theme.radius("base")
        color: area.pressed ? BGUI.Theme.sunken : BGUI.Theme.tint
        visible: area.containsMouse || root.activeFocus
        border.width: root.activeFocus ? 2 * dp : 0
        border.color: BGUI.Theme.focus
    }

    Image {
        id: picture
        y: BGUI.Theme.unit / 2
        width: 5 * BGUI.Theme.unit
        height: width
        anchors.horizontalCenter: parent.horizontalCenter
        source: "qrc:///Nuvex/Components/icons/" + root.type + ".png"
        sourceSize.width: 2 * width
        fillMode: Image.PreserveAspectFit
        mipmap: true
    }

    BGUI.Label {
        id: name
        anchors.top: picture.bottom
        width: parent.width
        height: 2 * lineHeight
        size: "xsmall"
        text: root.label
        lineHeightMode: Text.FixedHeight
        lineHeight: 1.25 * font.pixelSize
        maximumLineCount: 2
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        drag.target: root.dragArea ? ghost : null
        drag.smoothed: false
        onPressed: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            const at = mapToItem(root.dragArea, mouse.x, mouse.y);
            [ghost.x, ghost.y] = [at.x - ghost.width / 2, at.y - ghost.height / 2];
        }
        onReleased: ghost.Drag.drop()
        onClicked: {
            if (!root.dragArea)
                root.chosen();
        }
        onDoubleClicked: {
            if (root.dragArea)
                root.chosen();
        }
    }

    // What hangs at the pointer while the component is dragged.
    Image {
        id: ghost
        readonly property string componentType: root.type

        parent: root.dragArea
        width: 8 * BGUI.Theme.unit
        height: width
        visible: area.drag.active
        opacity: 0.8
        source: picture.source
        sourceSize.width: 2 * width
        fillMode: Image.PreserveAspectFit
        Drag.active: area.drag.active
        Drag.hotSpot.x: width / 2
        Drag.hotSpot.y: height / 2
        Drag.keys: ["component"]
    }
}
