// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One object of the outline: its id or its text, if it has one, and its type, and marks that hide and lock it.
Item {
    id: root

    /// As outline.js tells it.
    property var row
    property real indent: 0
    property bool isSelected: false
    property bool isHidden: false
    property bool isLocked: false

    readonly property bool isHovered: area.containsMouse || hide.hovered || lock.hovered

    signal chosen(bool isAdding)
    signal renamed(string id)
    signal hiddenToggled()
    signal lockedToggled()
    /// The row is dragged to the height `at`, is let go there, or the drag came to nothing.
    signal dragged(real at)
    signal dropped()
    signal dragCanceled()

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
        visible: root.isSelected || root.isHovered
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
        width: (root.isHovered || root.isHidden || root.isLocked ? marks.x : parent.width - BGUI.Theme.unit) - x
        height: parent.height
        size: "small"
        strong: root.isSelected
        muted: root.isHidden
        text: root.row.name === "" ? root.row.type : qsTr("%1 · %2").arg(root.row.name).arg(root.row.type)
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    MouseArea {
        id: area

        property real from: 0
        property bool isDragging: false

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: [from, isDragging] = [mouse.y, false]
        onPositionChanged: {
            if (root.row.depth > 0 && Math.abs(mouse.y - from) > 4 * dp)
                isDragging = pressed;
            if (pressed && isDragging)
                root.dragged(mouse.y);
        }
        onReleased: {
            if (isDragging)
                root.dropped();
        }
        onCanceled: root.dragCanceled()
        onClicked: {
            if (!isDragging)
                root.chosen(mouse.modifiers & Qt.ShiftModifier);
            isDragging = false;
        }
        onDoubleClicked: root.rename()
    }

    Row {
        id: marks
        anchors.right: parent.right
        anchors.rightMargin: 1.25 * BGUI.Theme.unit
        height: parent.height
        visible: root.row.depth > 0

        OutlineMark {
            id: hide
            objectName: "hide " + (root.row.id || root.row.type)
            isSet: root.isHidden
            isOffered: root.isHovered
            faIcon: root.isHidden ? "fa-eye-slash" : "fa-eye"
            toolTip: root.isHidden ? qsTr("Show (H)") : qsTr("Hide while editing (H)")
            onClicked: root.hiddenToggled()
        }

        OutlineMark {
            id: lock
            objectName: "lock " + (root.row.id || root.row.type)
            isSet: root.isLocked
            isOffered: root.isHovered
            faIcon: root.isLocked ? "fa-lock" : "fa-unlock"
            toolTip: root.isLocked ? qsTr("Unlock (L)") : qsTr("Lock while editing (L)")
            onClicked: root.lockedToggled()
        }
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
