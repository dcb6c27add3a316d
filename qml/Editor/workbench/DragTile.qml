// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A picture and a name, to drag to the canvas, or to choose: by a double click or Enter; where nothing can be dragged,
/// by a tap.
FocusScope {
    id: root

    property string label
    /// Draws the picture, as large as it is made.
    property Component picture
    property real pictureWidth: 5 * BGUI.Theme.unit
    property real pictureHeight: 5 * BGUI.Theme.unit
    property int lines: 2
    /// What is dropped: a map of "component", a type of the library, or "file", a path in the project.
    property var cargo: ({})
    /// What the tile is dragged over; without it a tap chooses.
    property Item dragArea: null

    signal chosen()

    height: drawing.height + name.height + 1.5 * BGUI.Theme.unit
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

    Loader {
        id: drawing
        y: BGUI.Theme.unit / 2
        width: root.pictureWidth
        height: root.pictureHeight
        anchors.horizontalCenter: parent.horizontalCenter
        sourceComponent: root.picture
    }

    BGUI.Label {
        id: name
        anchors.top: drawing.bottom
        width: parent.width
        height: root.lines * lineHeight
        size: "xsmall"
        text: root.label
        textFormat: Text.PlainText
        lineHeightMode: Text.FixedHeight
        lineHeight: 1.25 * font.pixelSize
        maximumLineCount: root.lines
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        drag.target: root.dragArea ? ghost : null
        drag.smoothed: false
        preventStealing: root.dragArea !== null
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

    // What hangs at the pointer while the tile is dragged.
    Loader {
        id: ghost
        readonly property var cargo: root.cargo

        parent: root.dragArea
        width: 1.6 * root.pictureWidth
        height: 1.6 * root.pictureHeight
        opacity: 0.8
        sourceComponent: area.drag.active ? root.picture : null
        Drag.active: area.drag.active
        Drag.hotSpot.x: width / 2
        Drag.hotSpot.y: height / 2
        Drag.keys: ["tile"]
    }
}
