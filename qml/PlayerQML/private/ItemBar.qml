// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// What is selected in the touch editor, and what can be done to it.
Rectangle {
    id: root

    property var desk

    readonly property int count: desk.selection.items.length
    readonly property bool hasMovable: desk.selection.movable.length > 0

    signal editWanted()
    signal propertiesWanted()
    signal fitted()

    function title() {
        if (count === 0)
            return qsTr("Tap an item");
        return count === 1 ? desk.titleOf(desk.selection.item) : qsTr("%1 items").arg(count);
    }

    height: 7 * BGUI.Theme.unit
    color: BGUI.Theme.surface

    Rectangle {
        width: parent.width
        height: Math.max(1, dp)
        color: BGUI.Theme.line
    }

    BGUI.Label {
        objectName: "selectedName"
        anchors.left: parent.left
        anchors.right: tools.left
        anchors.margins: 2 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: root.desk.revision >= 0 ? root.title() : ""
        textFormat: Text.PlainText
        strong: root.count > 0
        muted: root.count === 0
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }

    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-resize-full"
            toolTip: qsTr("Whole page")
            onClicked: root.fitted()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-level-up"
            toolTip: qsTr("What holds it")
            enabled: root.hasMovable
            onClicked: root.desk.selection.goUp()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-files-o"
            toolTip: qsTr("Copy")
            enabled: root.count > 0
            onClicked: root.desk.insertion.copy()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-clipboard"
            toolTip: qsTr("Paste")
            enabled: root.desk.live.root !== null
            onClicked: root.desk.insertion.paste()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-trash-o"
            toolTip: qsTr("Delete")
            enabled: root.hasMovable
            onClicked: root.desk.insertion.remove()
        }

        BGUI.Button {
            anchors.verticalCenter: parent.verticalCenter
            size: "large"
            faIcon: "fa-pencil"
            text: qsTr("Edit")
            enabled: root.count === 1
            onClicked: root.editWanted()
        }

        BGUI.Button {
            anchors.verticalCenter: parent.verticalCenter
            size: "large"
            faIcon: "fa-list"
            text: qsTr("Properties")
            enabled: root.count === 1
            onClicked: root.propertiesWanted()
        }
    }
}
