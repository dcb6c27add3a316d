// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One object of the outline: its id or its text, if it has one, and its type.
Item {
    id: root

    /// As outline.js tells it.
    property var row
    property bool isSelected: false

    readonly property real indent: BGUI.Theme.unit * (1 + 1.5 * Math.min(row.depth, 8))

    signal chosen(bool isAdding)
    signal renamed(string id)

    function rename() {
        field.text = row.id;
        field.visible = true;
        field.forceActiveFocus();
        field.selectAll();
    }

    // Ends the writing of the id; with `isKept` it becomes the object's.
    function endRenaming(isKept) {
        if (!field.visible)
            return;
        field.visible = false;
        if (isKept && field.text !== "" && field.text !== row.id)
            renamed(field.text);
    }

    objectName: "outline " + (row.id || row.type)
    height: 3.75 * BGUI.Theme.unit
    Accessible.role: Accessible.TreeItem
    Accessible.name: name.text
    Accessible.selected: isSelected

    Rectangle {
        anchors.fill: parent
        visible: root.isSelected || area.containsMouse
        color: root.isSelected ? BGUI.Theme.tint : BGUI.Theme.sunken
    }

    Rectangle {
        width: 3 * dp
        height: parent.height
        visible: root.isSelected
        color: BGUI.Theme.accent
    }

    BGUI.Label {
        id: name
        x: root.indent
        width: parent.width - x - BGUI.Theme.unit
        height: parent.height
        size: "small"
        strong: root.isSelected
        text: root.row.name === "" ? root.row.type : qsTr("%1 · %2").arg(root.row.name).arg(root.row.type)
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.chosen(mouse.modifiers & Qt.ShiftModifier)
        onDoubleClicked: root.rename()
    }

    BGUI.Input {
        id: field
        objectName: "newId"
        x: root.indent
        width: name.width
        anchors.verticalCenter: parent.verticalCenter
        visible: false
        size: "small"
        placeholderText: qsTr("Name")
        onAccepted: root.endRenaming(true)
        onActiveFocusChanged: {
            if (!activeFocus)
                root.endRenaming(true);
        }
        Keys.onEscapePressed: root.endRenaming(false)
    }
}
