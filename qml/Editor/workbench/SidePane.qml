// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI

/// What there is to set about the selected items: how several stand to each other, the panel of a single one, and all
/// its properties as the source has them.
FocusScope {
    id: root

    property var desk
    property alias tab: tabs.currentIndex

    readonly property var selection: desk.selection

    function openEntries() {
        if (panel.openEntries())
            tab = 0;
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 4 * BGUI.Theme.unit
        visible: root.selection.item === null && root.desk.fault === null
        faIcon: "fa-crosshairs"
        title: qsTr("Nothing is selected")
        text: qsTr("Click an item on the page to see what can be set.")
    }

    Column {
        id: head
        width: parent.width
        visible: root.selection.item !== null

        BGUI.Label {
            objectName: "selectedName"
            width: parent.width
            padding: BGUI.Theme.unit
            leftPadding: 2 * BGUI.Theme.unit
            strong: true
            text: root.selection.items.length > 1 ? qsTr("%1 items").arg(root.selection.items.length)
                                                  : root.desk.titleOf(root.selection.item)
            textFormat: Text.PlainText
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
        }

        BGUI.Label {
            objectName: "repeatedHint"
            x: 2 * BGUI.Theme.unit
            width: parent.width - 4 * BGUI.Theme.unit
            bottomPadding: BGUI.Theme.unit
            visible: root.selection.isRepeated
            size: "small"
            muted: true
            text: qsTr("It shows several times: a change changes all.")
        }

        ArrangeBar {
            x: 2 * BGUI.Theme.unit
            width: parent.width - 4 * BGUI.Theme.unit
            visible: root.selection.movable.length > 0
            desk: root.desk
        }

        BGUI.SwitchTabs {
            id: tabs
            width: parent.width
            model: [qsTr("Item"), qsTr("Properties")]
            currentIndex: 0
        }
    }

    Item {
        anchors.fill: parent
        anchors.topMargin: head.height
        visible: head.visible

        ItemPanel {
            id: panel
            anchors.fill: parent
            visible: tabs.currentIndex === 0
            desk: root.desk
            item: root.selection.items.length === 1 ? root.selection.item : null
            count: root.selection.items.length
        }

        PropertyList {
            anchors.fill: parent
            visible: tabs.currentIndex === 1
            desk: root.desk
        }
    }

    Rectangle {
        width: Math.max(1, dp)
        height: parent.height
        color: BGUI.Theme.line
    }
}
