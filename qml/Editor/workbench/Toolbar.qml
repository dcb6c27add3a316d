// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The editor's one toolbar: the way back, what is edited, and what is done most.
Rectangle {
    id: root

    property var desk
    property string project
    property real zoom: 1
    /// Whether there is a cloud to publish to, and whether that is free now.
    property bool hasCloud: false
    property bool canPublish: false
    property alias handIsOn: hand.checked
    property alias sourceIsShown: source.checked

    signal leave()
    signal zoomed(int notches)
    signal zoomedTo(real scale)
    signal fitted()
    signal keysWanted()
    signal playWanted()
    signal publishWanted()
    signal undone()

    readonly property bool hasItems: desk.selection.movable.length > 0

    implicitHeight: 6 * BGUI.Theme.unit
    color: BGUI.Theme.bar

    Row {
        id: start
        x: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        Tool {
            faIcon: "fa-arrow-left"
            toolTip: qsTr("Back")
            onClicked: root.leave()
        }

        BGUI.Label {
            objectName: "project"
            width: Math.min(implicitWidth, 24 * BGUI.Theme.unit)
            anchors.verticalCenter: parent.verticalCenter
            leftPadding: BGUI.Theme.unit / 2
            rightPadding: BGUI.Theme.unit
            text: root.project + (root.desk.isChanged ? " •" : "")
            textFormat: Text.PlainText
            strong: true
            color: BGUI.Theme.barInk
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
        }

        ToolGap {}

        Tool {
            objectName: "backward"
            faIcon: "fa-undo"
            toolTip: qsTr("Undo (Ctrl+Z)")
            enabled: root.desk.canUndo
            onClicked: root.undone()
        }

        Tool {
            objectName: "forward"
            faIcon: "fa-repeat"
            toolTip: qsTr("Redo")
            enabled: root.desk.canRedo
            onClicked: root.desk.redo()
        }

        ToolGap {}

        Tool {
            faIcon: "fa-files-o"
            toolTip: qsTr("Copy (Ctrl+C)")
            enabled: root.desk.selection.item !== null
            onClicked: root.desk.insertion.copy()
        }

        Tool {
            faIcon: "fa-clipboard"
            toolTip: qsTr("Paste (Ctrl+V)")
            enabled: root.desk.live.root !== null
            onClicked: root.desk.insertion.paste()
        }

        Tool {
            faIcon: "fa-plus-square-o"
            toolTip: qsTr("Duplicate (Ctrl+D)")
            enabled: root.hasItems
            onClicked: root.desk.insertion.duplicate()
        }

        Tool {
            objectName: "trash"
            faIcon: "fa-trash-o"
            toolTip: qsTr("Delete (Del)")
            enabled: root.hasItems
            onClicked: root.desk.insertion.remove()
        }
    }

    Row {
        anchors.right: end.left
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        Tool {
            id: hand
            faIcon: "fa-move"
            toolTip: qsTr("Hand: drags move the page (hold Space)")
            checkable: true
        }

        ToolGap {}

        Tool {
            faIcon: "fa-search-minus"
            toolTip: qsTr("Smaller")
            onClicked: root.zoomed(-1)
        }

        Tool {
            objectName: "zoom"
            width: 6.5 * BGUI.Theme.unit
            toolTip: qsTr("100 % (Ctrl+1)")
            onClicked: root.zoomedTo(1)

            BGUI.Label {
                objectName: "zoomPercent"
                anchors.centerIn: parent
                size: "small"
                color: BGUI.Theme.barInk
                text: qsTr("%1 %").arg(Math.round(100 * root.zoom))
            }
        }

        Tool {
            faIcon: "fa-search-plus"
            toolTip: qsTr("Larger")
            onClicked: root.zoomed(1)
        }

        Tool {
            faIcon: "fa-resize-full"
            toolTip: qsTr("Whole page (Ctrl+0)")
            onClicked: root.fitted()
        }
    }

    Row {
        id: end
        anchors.right: parent.right
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        ToolGap {}

        Tool {
            id: source
            faIcon: "fa-code"
            toolTip: qsTr("Source (F4)")
            checkable: true
        }

        Tool {
            faIcon: "fa-keyboard-o"
            toolTip: qsTr("Keys (?)")
            onClicked: root.keysWanted()
        }

        ToolGap {}

        Tool {
            faIcon: "fa-play"
            toolTip: qsTr("Play (F5)")
            onClicked: root.playWanted()
        }

        Tool {
            objectName: "publish"
            visible: root.hasCloud
            enabled: root.canPublish
            faIcon: "fa-cloud-upload"
            toolTip: qsTr("Save and publish")
            onClicked: root.publishWanted()
        }

        BGUI.Button {
            objectName: "save"
            anchors.verticalCenter: parent.verticalCenter
            type: "primary"
            faIcon: "fa-floppy-o"
            text: qsTr("Save")
            onClicked: root.desk.save()
        }
    }
}
