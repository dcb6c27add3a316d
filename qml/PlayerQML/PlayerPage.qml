// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "SharedVars.js" as SS
import "private"

// Shows a project's document over the whole page, and follows the account's wishes.
StackPage {
    id: playerPage

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
        if (CAPI.fileExist(documentUrl))
            return documentUrl;
        // There is no `api`: without the document this ends here with a script error, and nothing is fetched.
        api.trimComponentCache();
        CAPI.doOneShareDown(CAPI.getSSetting("lastProject"), "0");
    }

    function load() {
        notice = "";
        thePlayer.source = "";
        thePlayer.source = playerSource();
    }

    objectName: "PlayerPage"

    Loader {
        anchors.fill: parent
        active: playerPage.settled && !thePlayer.isShown

        sourceComponent: Standby {
            project: playerPage.project
            documentName: SS.qmlFileName
            documentUrl: playerPage.documentUrl
            failed: playerPage.failed
            networkAddress: playerPage.shell ? playerPage.shell.networkAddress : ""
        }
    }

    ProjectLoader {
        id: thePlayer
        objectName: "thePlayer"
        source: playerPage.playerSource()
    }

    PlayerNotice {
        text: playerPage.notice !== "" ? playerPage.notice : (playerPage.failed ? "Error loading... " : "")
    }

    Rectangle {
        objectName: "connectionDot"
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

    StayFullScreen {}

    ProjectFollower {
        id: follower
        project: playerPage.project
    }

    Connections {
        target: CAPI

        function onReloadPlayer() {
            playerPage.load();
        }

        function onStartUpdating() {
            playerPage.notice = "Updating";
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
