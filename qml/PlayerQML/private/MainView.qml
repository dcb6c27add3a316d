// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1

/// What one sees of the main page.
FocusScope {
    id: root

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
        project: root.page.project
    }

    ProjectStill {
        id: still
        // Looked for again whenever the page is.
        project: root.page.active ? root.page.project : ""
    }

    MainDesk {
        id: desk
        anchors.top: banner.bottom
        anchors.bottom: message.top
        width: parent.width
        focus: true
        enabled: !root.page.busy
        still: still.source
        tiles.canEdit: !CAPI.isDevice() || CAPI.haveTouch()
        tiles.canPlay: CAPI.isDevice()
        tiles.onOpenChosen: root.page.open("ProjectsPage")
        tiles.onEditChosen: root.page.edit()
        tiles.onPlayChosen: root.page.play()
        tiles.onDashboardChosen: root.page.openDashboard()
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
        onChosen: root.page.open(page)
        onClosed: desk.forceActiveFocus()
    }

    BGUI.CustomBuzyInd {
        running: root.page.busy
        text: "Loading..."
    }

    Shortcut {
        sequence: "F1"
        enabled: root.page.active
        onActivated: root.page.open("HelpPage")
    }

    Shortcut {
        sequence: "Ctrl+E"
        enabled: root.page.active
        onActivated: root.page.open("ZipGeneratorPage")
    }
}
