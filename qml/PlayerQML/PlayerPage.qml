// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "SharedVars.js" as SS
import "private"
import "private/fit.js" as Fit

// Shows a project's document over the whole page, turned and scaled to fit, and follows the account's wishes.
StackPage {
    id: playerPage

    property string project
    property url documentUrl
    property string notice

    readonly property bool failed: thePlayer.status === Loader.Error

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

    function place() {
        const item = thePlayer.item;
        const fitted = item ? Fit.fit(item.width, item.height, width, height) : null;
        if (!fitted)
            return;
        item.transform = fitted.turned ? [quarterTurn, lift] : [];
        item.transformOrigin = fitted.turned ? Item.TopRight : Item.TopLeft;
        item.scale = fitted.scale;
        item.x = fitted.x;
        item.y = fitted.y;
    }

    // A document without a size of its own takes the page's.
    function giveSize(item) {
        if (!(item.width > 0))
            item.width = Qt.binding(() => playerPage.width);
        if (!(item.height > 0))
            item.height = Qt.binding(() => playerPage.height);
    }

    objectName: "PlayerPage"
    onWidthChanged: place()
    onHeightChanged: place()

    Standby {
        anchors.fill: parent
        visible: thePlayer.item === null
        project: playerPage.project
        documentName: SS.qmlFileName
        documentUrl: playerPage.documentUrl
        failed: playerPage.failed
    }

    Loader {
        id: thePlayer
        objectName: "thePlayer"
        source: playerPage.playerSource()
        onLoaded: {
            playerPage.giveSize(item);
            playerPage.place();
        }
        onWidthChanged: playerPage.place()
        onHeightChanged: playerPage.place()
    }

    Rotation {
        id: quarterTurn
        angle: -90
    }

    Translate {
        id: lift
        y: thePlayer.item ? thePlayer.item.width : 0
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

    // The window system may restore the window shortly after start.
    Timer {
        property int rounds: 0

        interval: 5000
        repeat: true
        running: true
        triggeredOnStart: true
        onTriggered: {
            CAPI.setFullScreen(true);
            if (++rounds === 24)
                stop();
        }
    }

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

    Component.onCompleted: follower.start(thePlayer.item)
}
