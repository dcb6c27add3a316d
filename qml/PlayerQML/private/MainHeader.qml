// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The main page's bar: the program's name, and the button that opens the menu.
Rectangle {
    id: root

    property bool menuOpen: false

    signal menuRequested()

    width: parent.width
    height: 7 * BGUI.Theme.unit
    color: BGUI.Theme.bar

    Image {
        id: mark
        x: 3 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: 4 * BGUI.Theme.unit
        height: width
        source: "qrc:/Nuvex/images/logo.png"
        sourceSize: Qt.size(2 * width, 2 * height)
    }

    BGUI.Label {
        anchors.left: mark.right
        anchors.leftMargin: 1.5 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: "h4"
        text: "Nuvex"
        color: BGUI.Theme.barInk
    }

    BGUI.ActionButton {
        anchors.right: parent.right
        anchors.rightMargin: 2 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: "xlarge"
        faIcon: "fa-cog"
        toolTip: root.menuOpen ? "" : qsTr("Menu")
        onDark: true
        checked: root.menuOpen
        onClicked: root.menuRequested()
    }
}
