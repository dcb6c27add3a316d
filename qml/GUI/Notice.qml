// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A message in the flow of a page: "info", "success", "warning" or "danger". Takes no room while its text is empty.
Rectangle {
    id: root

    property string type: "info"
    property string text
    property string size: "base"
    property bool closable: false

    readonly property var icons: ({ "info": "fa-info-circle", "success": "fa-check-circle",
                                    "warning": "fa-exclamation-triangle", "danger": "fa-exclamation-circle" })
    readonly property color brand: bs["brand-" + type]

    width: parent ? parent.width : implicitWidth
    implicitWidth: 48 * Theme.unit
    implicitHeight: visible ? Math.max(message.height, close.visible ? close.height : 0) + 2 * Theme.unit : 0
    visible: text !== ""
    radius: Theme.radius("base")
    color: Qt.tint(Theme.surface, Qt.rgba(brand.r, brand.g, brand.b, 0.16))
    border.width: Math.max(1, dp)
    border.color: brand
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    FontAwesomeIcon {
        id: icon
        x: 1.5 * Theme.unit
        y: message.y
        height: message.height / message.lineCount
        faIcon: root.icons[root.type] || "fa-info-circle"
        size: root.size
        color: Theme.strongInk
    }

    Label {
        id: message
        anchors.left: icon.right
        anchors.right: close.visible ? close.left : parent.right
        anchors.leftMargin: Theme.unit
        anchors.rightMargin: 1.5 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        textFormat: Text.PlainText
        size: root.size
        color: Theme.strongInk
    }

    ActionButton {
        id: close
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit / 2
        anchors.verticalCenter: parent.verticalCenter
        visible: root.closable
        size: root.size
        faIcon: "fa-times"
        toolTip: qsTr("Close")
        onClicked: root.text = ""
    }
}
