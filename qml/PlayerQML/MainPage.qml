// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI
import "SharedVars.js" as SS
import "private"

// The first page: the project being worked on, and the ways from here.
StackPage {
    id: mainPage

    property string project

    readonly property bool canEdit: !CAPI.isDevice() || CAPI.haveTouch()

    function workspaceProblem() {
        const work = CAPI.getWorkDirectory();
        if (!CAPI.fileExist(work + "/."))
            return qsTr("The workspace %1 cannot be used.").arg(work);
        if (project !== "" && !CAPI.fileExist(work + "/" + project + "/."))
            return qsTr("The project %1 is not in the workspace.").arg(project);
        return "";
    }

    function refresh() {
        const name = CAPI.getSSetting("lastProject");
        if (name !== project || name === "") {
            project = name;
            if (name !== "")
                CAPI.setBaseFolder(name);
        }
        message.text = workspaceProblem();
    }

    // A project that the command line started ends when this page is shown again.
    function leaveStartedProject() {
        if (SS.startedProject === "")
            return;
        SS.startedProject = "";
        project = "";
    }

    function whenDrawn(task) {
        if (project === "")
            return;
        busy.start("Loading...");
        later.task = task;
        later.start();
    }

    function back() {
        if (menu.visible)
            menu.close();
        else
            Qt.quit();
    }

    objectName: "MainPage"
    onActiveChanged: {
        if (!active)
            return;
        busy.running = false;
        leaveStartedProject();
        refresh();
        CAPI.setFullScreen(CAPI.isDevice());
        SS.isPlaying = false;
    }
    Component.onCompleted: {
        SS.JCAPI = CAPI;
        Ejs.JCAPI = CAPI;
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
        project: mainPage.project
    }

    MainTiles {
        id: tiles
        anchors.top: banner.bottom
        anchors.bottom: message.top
        width: parent.width
        focus: true
        enabled: !busy.running
        canEdit: mainPage.canEdit
        canPlay: CAPI.isDevice()
        onOpenChosen: mainPage.shell.open("ProjectsPage")
        onEditChosen: mainPage.whenDrawn(mainPage.shell.edit)
        onPlayChosen: mainPage.whenDrawn(mainPage.shell.play)
        onDashboardChosen: mainPage.shell.openDashboard()
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
        onChosen: mainPage.shell.open(page)
        onClosed: tiles.forceActiveFocus()
    }

    BGUI.CustomBuzyInd {
        id: busy
    }

    // Gives the busy indicator time to be drawn before the work that blocks.
    Timer {
        id: later
        property var task
        interval: 10
        onTriggered: task()
    }

    Shortcut {
        sequence: "F1"
        enabled: mainPage.active
        onActivated: mainPage.shell.open("HelpPage")
    }

    Shortcut {
        sequence: "Ctrl+E"
        enabled: mainPage.active
        onActivated: mainPage.shell.open("ZipGeneratorPage")
    }
}
