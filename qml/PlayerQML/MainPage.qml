// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0 as Editor
import "private"
import "private/limits.js" as Limits
import "SharedVars.js" as SS

/// The first page: the project being worked on, and the ways from here. It lies under every other page, so what
/// one sees of it is made only when it is shown: a wall starts without it.
StackPage {
    id: root

    property string project
    property bool busy: false

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
        if (name === project && name !== "")
            return;
        project = name;
        if (name !== "")
            CAPI.setBaseFolder(name);
    }

    // A project that the command line started ends when this page is shown again.
    function leaveStartedProject() {
        if (SS.startedProject === "")
            return;
        SS.startedProject = "";
        project = "";
    }

    function show() {
        if (!active)
            return;
        if (view.status === Loader.Null)
            view.setSource("private/MainView.qml", {"page": root});
        view.item.showMessage(workspaceProblem());
    }

    function open(page) {
        shell.open(page);
    }

    // A project that is not there is not edited: the editor would have nothing to show and nowhere to save.
    function edit() {
        const problem = project === "" ? qsTr("No project is open. Press Open to choose one, or to make a new one.")
                                       : workspaceProblem();
        if (problem === "")
            whenDrawn(shell.edit);
        else
            view.item.showMessage(problem);
    }

    function play() {
        whenDrawn(shell.play);
    }

    function openDashboard() {
        shell.openDashboard();
    }

    function whenDrawn(task) {
        if (project === "")
            return;
        busy = true;
        later.task = task;
        later.start();
    }

    function back() {
        if (view.item && view.item.menuOpen)
            view.item.closeMenu();
        else
            Qt.quit();
    }

    objectName: "MainPage"
    onActiveChanged: {
        if (!active)
            return;
        busy = false;
        leaveStartedProject();
        refresh();
        CAPI.setFullScreen(CAPI.isDevice());
        SS.isPlaying = false;
        // At the start another page may follow at once.
        Qt.callLater(show);
    }
    Component.onCompleted: {
        SS.JCAPI = CAPI;
        Editor.Ejs.JCAPI = CAPI;
    }

    Loader {
        id: view
        anchors.fill: parent
        focus: true
    }

    // Gives the busy indicator time to be drawn before the work that blocks.
    Timer {
        id: later
        property var task
        interval: Limits.drawFirst
        onTriggered: task()
    }
}
