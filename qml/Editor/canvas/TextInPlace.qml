// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Edits the text of an item where it stands. A plain text shows as it will be while one writes; what draws its text in
/// a way of its own gets a plate. Escape, Ctrl+Enter and leaving it end it.
ItemSpace {
    id: root

    property var desk
    readonly property bool isOpen: target !== null
    // The item draws the text itself, in the same place as an edit would.
    readonly property bool isPlain: isOpen && target.paintedWidth !== undefined && target.wrapMode !== undefined
                                    && target.textFormat !== Text.RichText && target.textFormat !== Text.StyledText
    property string begun

    function open(item, text) {
        begun = text;
        target = item;
        edit.text = text;
        edit.forceActiveFocus();
        edit.selectAll();
    }

    // Ends it; what was written becomes a change.
    function finish() {
        if (target === null)
            return;
        const item = target;
        target = null;
        if (edit.text !== begun)
            desk.changes.text(item, edit.text);
        edit.focus = false;
    }

    Connections {
        target: root.desk

        function onSettling() {
            root.finish();
        }
    }

    Rectangle {
        x: -8 / root.unit
        y: x
        width: edit.width - 2 * x
        height: edit.height - 2 * y
        visible: !root.isPlain
        color: "white"
        border.width: 1 / root.unit
        border.color: "#2a6496"
    }

    TextEdit {
        id: edit
        objectName: "textInPlace"
        width: root.isPlain ? Math.max(root.width, 1) : Math.max(root.width, implicitWidth)
        height: Math.max(root.height, implicitHeight)
        textFormat: TextEdit.PlainText
        selectByMouse: true
        font: root.isOpen && root.target.font !== undefined ? root.target.font : Qt.font({ pixelSize: 24 })
        color: root.isPlain ? "transparent" : "#141312"
        selectedTextColor: root.isPlain ? "transparent" : "white"
        selectionColor: root.isPlain ? "#662a6496" : "#2a6496"
        wrapMode: root.isPlain ? root.target.wrapMode : TextEdit.NoWrap
        horizontalAlignment: root.isPlain ? root.target.horizontalAlignment : TextEdit.AlignLeft
        verticalAlignment: root.isPlain ? root.target.verticalAlignment : TextEdit.AlignTop
        cursorDelegate: Rectangle {
            width: 2 / root.unit
            visible: edit.activeFocus
            color: "#2a6496"
            border.width: 0.5 / root.unit
            border.color: "white"
        }
        onTextChanged: {
            if (root.isPlain && root.target.text !== text)
                root.target.text = text;
        }
        onActiveFocusChanged: {
            if (!activeFocus)
                root.finish();
        }
        Keys.onPressed: {
            const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
            const isEnd = event.key === Qt.Key_Escape || (isReturn && event.modifiers & Qt.ControlModifier);
            if (isEnd)
                root.finish();
            event.accepted = isEnd;
        }
    }
}
