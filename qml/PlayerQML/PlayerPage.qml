// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import "private"
import "private/limits.js" as Limits
import "SharedVars.js" as SS

/// Shows a project's document over the whole page, and follows the account's wishes.
StackPage {
    id: root

    property string project
    property url documentUrl
    property string notice
    // Set once the first attempt to load is over, so that nothing is made that is not needed.
    property bool settled: false

    readonly property bool failed: thePlayer.status === Loader.Error || (thePlayer.item !== null && !thePlayer.isShown)

    // Paths may hold characters that mean something in a URL.
    function fileUrl(path) {
        return "file:///" + encodeURI(path).replace(/[?#]/g, encodeURIComponent);
    }

    function playerSource() {
        CAPI.getFonts();
        project = CAPI.getBaseProjectName();
        documentUrl = fileUrl(CAPI.baseFolder() + "/" + SS.qmlFileName);
        if (!startGuard.mayPlay())
            return "";
        // What hangs or crashes from here on has a name in the log.
        if (shell)
            console.info(shell.log, "plays", documentUrl);
        if (CAPI.fileExist(documentUrl))
            return endsLoading() ? documentUrl : "";
        // There is no `api`: without the document this ends here with a script error, and nothing is fetched.
        api.trimComponentCache();
        CAPI.doOneShareDown(CAPI.getSSetting("lastProject"), "0");
    }

    // Whether the document is loaded to its end at some time; the engine would go on until its stack is full.
    function endsLoading() {
        const faults = judge.inLoading(CAPI.readTextFile(SS.qmlFileName), documentUrl);
        faults.forEach(fault => console.warn(documentUrl + ":" + fault.line + ": " + fault.message));
        notice = faults.length > 0 ? faults[0].message : notice;
        return faults.length === 0;
    }

    function load() {
        notice = "";
        thePlayer.source = "";
        // A project that is not here yet comes with the first revision that is heard of.
        try {
            thePlayer.source = playerSource();
        } finally {
            follower.follow(thePlayer.item);
        }
    }

    objectName: "PlayerPage"

    Loader {
        anchors.fill: parent
        active: root.settled && !thePlayer.isShown

        sourceComponent: Standby {
            project: root.project
            documentName: SS.qmlFileName
            documentUrl: root.documentUrl
            failed: root.failed
            obstacle: startGuard.obstacle
            networkAddress: root.shell ? root.shell.networkAddress : ""
        }
    }

    StartGuard {
        id: startGuard
        onReleased: root.load()
    }

    DocumentFaults {
        id: judge
    }

    ProjectLoader {
        id: thePlayer
        objectName: "thePlayer"
        source: root.playerSource()
    }

    PlayerNotice {
        text: root.notice !== "" ? root.notice : (root.failed ? "Error loading... " : "")
    }

    // Where there is no cloud, or no account, there is no connection to lose.
    Rectangle {
        objectName: "connectionDot"
        visible: SS.cloudIsSetUp() && follower.user !== ""
        x: parent.width - width - 5
        y: 5
        width: 10
        height: 10
        radius: 5
        color: CAPI.iConnected ? "white" : "red"
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        cursorShape: Qt.BlankCursor
    }

    ProjectStill {
        id: still
        project: root.project
    }

    // Later than any board needs to be whole.
    Timer {
        objectName: "stillTimer"
        running: thePlayer.isShown
        interval: Limits.firstStill
        onTriggered: still.take(thePlayer.item)
    }

    StayFullScreen {}

    ProjectFollower {
        id: follower
        objectName: "follower"
        project: root.project
    }

    Connections {
        target: CAPI

        function onReloadPlayer() {
            if (!follower.showAwaited()) // which ends here again
                root.load();
        }

        function onStartUpdating() {
            root.notice = "Updating";
        }

        function onProjectUpdated(localRevision) {
            follower.reportRevision(localRevision);
        }
    }

    Component.onCompleted: {
        settled = true;
        follower.start(thePlayer.item);
    }
}
