// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "SharedVars.js" as SS
import "private"
import "private/dashboard"

/// The players of the account, what they show and when they were last heard of; and those of the local network.
FormPage {
    id: root

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property bool hasAccount: user !== "" && Deployment.available
    // There the tools go away with the tiles when these are moved.
    readonly property bool isLow: height < 75 * BGUI.Theme.unit
    // The player that something is being done with.
    property string player
    // Names of the account's projects; asked for once there is a use for them, and again while there are none.
    property var cloudProjects: []

    function read() {
        if (hasAccount && !players.isReading)
            players.read();
    }

    function readAll() {
        read();
        grid.fetchPictures();
    }

    function readFirst() {
        busy.start("Please wait...");
        read();
    }

    function takeFirstAnswer() {
        if (busy.running && !players.isReading)
            busy.finish();
        if (players.hasFailed)
            message.fail(qsTr("The players of the account could not be read."));
    }

    // --- what is done with a player -----------------------------------------------------------------------

    function askToDelete(key) {
        player = key;
        question.title = qsTr("Delete %1?").arg(players.nameOf(key));
        question.open();
    }

    function deletePlayer() {
        busy.start("Please wait...");
        SS.deletePlayer(user, player, finishDelete, deadline);
    }

    // The keyboard was lost when the page took no input.
    function finishRequest() {
        busy.finish();
        grid.forceActiveFocus(Qt.TabFocusReason);
    }

    function finishDelete(success) {
        const name = players.nameOf(player);
        finishRequest();
        if (success) {
            players.remove(player);
            message.succeed(qsTr("%1 is deleted.").arg(name));
        } else {
            message.fail(qsTr("%1 could not be deleted.").arg(name));
        }
    }

    function chooseProject(key) {
        player = key;
        if (cloudProjects.length > 0) {
            openChooser();
        } else if (!CAPI.isConnectedToNetwork()) {
            message.fail(qsTr("This computer has no network."), "...error connecting");
        } else if (!transfers.running) {
            transfers.entries = [];
            transfers.listProjects();
            openChooser();
        }
    }

    function openChooser() {
        chooser.title = qsTr("What is %1 to show?").arg(players.nameOf(player));
        chooser.open();
    }

    function setProject(project) {
        busy.start("Please wait...");
        SS.setPlayerProject(user, player, project, finishSetProject, deadline);
    }

    function finishSetProject(success, result) {
        const name = players.nameOf(player);
        finishRequest();
        if (success) {
            players.setProject(player, result.project);
            message.succeed(qsTr("%1 is to show %2.").arg(name).arg(result.project));
        } else {
            message.fail(qsTr("The project of %1 could not be set.").arg(name));
        }
    }

    // --- what is exchanged on the local network -----------------------------------------------------------

    function chooseExchanged(name, isSending) {
        exchangeChooser.player = name;
        exchangeChooser.isSending = isSending;
        exchangeChooser.projects = CAPI.getProjectList().sort((a, b) => a.localeCompare(b));
        exchangeChooser.open();
    }

    objectName: "ConnectedPlayers"
    title: qsTr("Dashboard")
    subtitle: hasAccount ? user : ""
    Component.onCompleted: {
        if (hasAccount)
            readFirst();
    }

    actions: BGUI.ActionButton {
        visible: root.hasAccount
        size: "large"
        faIcon: "fa-refresh"
        toolTip: qsTr("Read the players again")
        onDark: true
        busy: players.isReading
        onClicked: root.readAll()
    }

    PlayerList {
        id: players
        user: root.user
        active: root.active && root.hasAccount
        onAnswered: root.takeFirstAnswer()
        onSwitched: screenshots.expect(player, project)
    }

    ScreenshotWatch {
        id: screenshots
        players: players
        active: root.active
    }

    DashboardTools {
        id: tools
        x: 2 * BGUI.Theme.unit
        y: 2 * BGUI.Theme.unit - (root.isLow ? grid.contentY - grid.originY : 0)
        z: 1
        width: parent.width - 4 * BGUI.Theme.unit
        visible: players.count > 0
        players: players
        onActiveFocusChanged: {
            if (activeFocus)
                grid.positionViewAtBeginning();
        }
    }

    PlayerGrid {
        id: grid
        x: 2 * BGUI.Theme.unit
        anchors.top: parent.top
        anchors.topMargin: root.isLow ? 0 : tools.height + 4 * BGUI.Theme.unit
        anchors.bottom: local.top
        width: parent.width - x - BGUI.Theme.unit
        headRoom: root.isLow ? tools.height + 4 * BGUI.Theme.unit : 0
        focus: true
        visible: players.count > 0
        players: players
        screenshots: screenshots
        tileSize: tools.tileSize
        onChosen: root.chooseProject(player)
        onDeleteRequested: root.askToDelete(player)
    }

    DashboardState {
        anchors.top: parent.top
        anchors.bottom: local.top
        width: parent.width
        players: players
        hasAccount: root.hasAccount
        onSignInRequested: root.shell.open("LoginPage")
        onReadRequested: root.readFirst()
        onShowAllRequested: tools.reset()
    }

    DashboardMessage {
        id: message
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: local.top
        anchors.bottomMargin: 2 * BGUI.Theme.unit
    }

    LocalPlayers {
        id: local
        anchors.bottom: parent.bottom
        width: parent.width
        onProjectWanted: root.chooseExchanged(player, isSending)
    }

    ProjectChooser {
        id: chooser
        projects: root.cloudProjects
        isLoading: transfers.running
        emptyText: qsTr("No project is published for this account yet. Publish one from the editor first.")
        onChosen: root.setProject(project)
    }

    ProjectChooser {
        id: exchangeChooser
        property string player
        property bool isSending: true

        objectName: "exchangeChooser"
        title: (isSending ? qsTr("Send which project to %1?") : qsTr("Fetch which project from %1?")).arg(player)
        takesOthers: !isSending
        emptyText: isSending ? qsTr("There is no project on this computer.")
                             : qsTr("Type the name that the project has there.")
        onChosen: local.begin(player, isSending, project)
    }

    BGUI.MessageBox {
        id: question
        type: "danger"
        text: qsTr("It goes from the list of the account. If it still runs, it comes back with its next sign of life.")
        acceptText: qsTr("Delete")
        rejectText: qsTr("Cancel")
        onAccepted: root.deletePlayer()
    }

    RequestDeadline {
        id: deadline
    }

    Transfers {
        id: transfers
        property var entries: []

        onListed: transfers.entries = entries
        onFinished: {
            if (error === "" && !cancelled) {
                root.cloudProjects = transfers.entries.map(entry => entry.name);
            } else if (error !== "") {
                chooser.close();
                message.fail(error);
            }
        }
    }

    Shortcut {
        sequence: "F5"
        enabled: root.active
        onActivated: root.readAll()
    }

    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.active && tools.visible
        onActivated: tools.edit()
    }
}
