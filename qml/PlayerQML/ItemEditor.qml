// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The panel of the selected item, for fingers. What is set shows when one goes back to the document.
FormPage {
    id: root

    property var desk

    objectName: "ItemEditor"
    title: desk ? desk.titleOf(desk.selection.item) : ""
    subtitle: CAPI.getBaseProjectName()

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 90 * BGUI.Theme.unit)
        height: parent.height
        color: BGUI.Theme.surface

        ItemPanel {
            anchors.fill: parent
            desk: root.desk
            item: root.desk ? root.desk.selection.item : null
        }
    }

    // Panels tell the script of their changes where they stand beside the document; here the desk looks for itself.
    Connections {
        target: CAPI
        enabled: root.active

        function onNewerEditingState() {
            root.desk.takePanelChange();
        }
    }

    MessageStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2 * BGUI.Theme.unit
        desk: root.active ? root.desk : null
    }
}
