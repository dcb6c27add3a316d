// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The bar at the top of a page: back button, title, a second line, and at the right end what is declared inside it
/// (ActionButtons with `onDark`).
Rectangle {
    id: root

    property string title
    property string subtitle
    property string size: "large"
    property bool backVisible: true
    default property alias actions: tools.data

    signal back()

    width: parent ? parent.width : 0
    implicitHeight: 7 * Theme.unit
    color: Theme.bar
    Accessible.role: Accessible.Heading
    Accessible.name: title

    ActionButton {
        id: backButton
        x: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: root.backVisible
        size: root.size
        faIcon: "fa-arrow-left"
        toolTip: qsTr("Back")
        onDark: true
        onClicked: root.back()
    }

    Column {
        anchors.left: backButton.visible ? backButton.right : parent.left
        anchors.right: tools.left
        anchors.margins: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: root.title
            textFormat: Text.PlainText
            size: "large"
            strong: true
            color: Theme.barInk
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: root.subtitle
            textFormat: Text.PlainText
            size: "small"
            color: Theme.barInk
            opacity: 0.75
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
        }
    }

    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit / 2
    }
}
