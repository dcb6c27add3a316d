// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

// What one sees of the main page.
FocusScope {
    id: view

    property var page

    readonly property bool menuOpen: menu.visible

    function closeMenu() {
        menu.close();
    }

    function showMessage(text) {
        message.text = text;
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.ground
    }

    MainHeader {
        id: header
        menuOpen: menu.visible
        onMenuRequested: menu.toggle()
    }

    MainBanner {
        id: banner
        anchors.top: header.bottom
        width: parent.width
        project: view.page.project
    }

    MainTiles {
        id: tiles
        anchors.top: banner.bottom
        anchors.bottom: message.top
        width: parent.width
        focus: true
        enabled: !view.page.busy
        canEdit: !CAPI.isDevice() || CAPI.haveTouch()
        canPlay: CAPI.isDevice()
        onOpenChosen: view.page.open("ProjectsPage")
        onEditChosen: view.page.edit()
        onPlayChosen: view.page.play()
        onDashboardChosen: view.page.openDashboard()
    }

    FooterMessage {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
    }

    MainMenu {
        id: menu
        anchors.fill: parent
        anchors.topMargin: header.height
        onChosen: view.page.open(page)
        onClosed: tiles.forceActiveFocus()
    }

    BGUI.CustomBuzyInd {
        running: view.page.busy
        text: "Loading..."
    }

    Shortcut {
        sequence: "F1"
        enabled: view.page.active
        onActivated: view.page.open("HelpPage")
    }

    Shortcut {
        sequence: "Ctrl+E"
        enabled: view.page.active
        onActivated: view.page.open("ZipGeneratorPage")
    }
}
