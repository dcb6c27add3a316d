// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// Asks what becomes of changes that are not saved when the editor is left. Escape stays.
BGUI.ModalPopup {
    id: root

    property string project
    property alias detail: detail.text
    property string size: "base"

    signal saveWanted()
    signal leaveWanted()

    function choose(act) {
        close();
        act();
    }

    objectName: "leaveQuestion"
    width: Math.min(parent ? parent.width - 4 * BGUI.Theme.unit : 0, 58 * BGUI.Theme.unit)
    padding: 3 * BGUI.Theme.unit
    height: contentItem.implicitHeight + 2 * padding
    closePolicy: T.Popup.CloseOnEscape
    onOpened: save.forceActiveFocus(Qt.TabFocusReason)

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: Column {
        spacing: 1.5 * BGUI.Theme.unit

        BGUI.Label {
            width: parent.width
            text: qsTr("Save the changes of %1?").arg(root.project)
            textFormat: Text.PlainText
            size: "h4"
        }

        BGUI.Label {
            id: detail
            width: parent.width
            size: root.size
            text: qsTr("Without saving, the project stays as it was saved last.")
        }

        Row {
            anchors.right: parent.right
            topPadding: BGUI.Theme.unit
            spacing: BGUI.Theme.unit

            BGUI.Button {
                size: root.size
                text: qsTr("Stay")
                onClicked: root.close()
            }

            BGUI.Button {
                size: root.size
                text: qsTr("Do not save")
                onClicked: root.choose(root.leaveWanted)
            }

            BGUI.Button {
                id: save
                size: root.size
                type: "primary"
                text: qsTr("Save and leave")
                onClicked: root.choose(root.saveWanted)
            }
        }
    }
}
