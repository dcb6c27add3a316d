// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Stands where there is nothing to show, or where showing it failed: says so, and what to do about it. Buttons
/// declared inside stand below the text.
Item {
    id: root

    property string faIcon: "fa-inbox"
    property string title
    property string text
    property bool isError: false
    default property alias actions: buttons.data

    implicitWidth: 40 * Theme.unit
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ". " + text

    Column {
        id: column
        anchors.centerIn: parent
        width: Math.min(parent.width, 48 * Theme.unit)
        spacing: Theme.unit

        FontAwesomeIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            faIcon: root.faIcon
            color: root.isError ? Theme.danger : Theme.mutedInk
            opacity: root.isError ? 1 : 0.6
            font.pixelSize: 6 * Theme.unit
        }

        Label {
            width: parent.width
            text: root.title
            textFormat: Text.PlainText
            size: "large"
            strong: true
            horizontalAlignment: Text.AlignHCenter
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: root.text
            textFormat: Text.PlainText
            muted: true
            horizontalAlignment: Text.AlignHCenter
        }

        Row {
            id: buttons
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: children.length > 0 ? Theme.unit : 0
            spacing: Theme.unit
        }
    }
}
