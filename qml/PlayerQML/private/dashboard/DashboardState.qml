// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import Nuvex.GUI 1.0 as BGUI

/// Stands where there are no tiles: says why, and what to do about it.
Item {
    id: root

    property PlayerList players
    property bool hasAccount: false

    readonly property bool isFiltered: players.count > 0 && players.rows.count === 0
    readonly property string why: {
        if (!Deployment.available)
            return "offline";
        if (!hasAccount)
            return "signedOut";
        if (players.count > 0)
            return isFiltered ? "filtered" : "";
        if (players.hasFailed && !players.isKnown)
            return "failed";
        return players.isKnown ? "empty" : "";
    }
    readonly property var texts: ({
        "offline": ["fa-cloud", qsTr("No cloud is set up"),
            qsTr("The players of an account are shown here once a deployment file names a cloud: "
                 + "nuvex --deployment FILE. Players of the local network are shown below without one.")],
        "signedOut": ["fa-user", qsTr("Nobody is signed in"),
            qsTr("Sign in to see the players of your account.")],
        "failed": ["fa-chain-broken", qsTr("The players could not be read"),
            qsTr("The cloud gave no answer that helps. Look at the network of this computer, then try again.")],
        "empty": ["fa-desktop", qsTr("No player yet"),
            qsTr("Start Nuvex on a screen and sign in there as %1. It appears here within a minute.")
            .arg(players.user)],
        "filtered": ["fa-search", qsTr("No player fits"),
            qsTr("None of the %1 players has these words in its name or project and is in that state.")
            .arg(players.count)]
    })

    signal signInRequested()
    signal readRequested()
    signal showAllRequested()

    visible: why !== ""

    BGUI.EmptyState {
        id: empty
        objectName: "dashboardState"
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        faIcon: root.visible ? root.texts[root.why][0] : ""
        title: root.visible ? root.texts[root.why][1] : ""
        text: root.visible ? root.texts[root.why][2] : ""
        isError: root.why === "failed"

        BGUI.Button {
            visible: root.why === "signedOut"
            type: "primary"
            size: "large"
            text: qsTr("Sign in")
            onClicked: root.signInRequested()
        }

        BGUI.Button {
            visible: root.why === "failed" || root.why === "empty"
            type: "primary"
            size: "large"
            text: qsTr("Read again")
            onClicked: root.readRequested()
        }

        BGUI.Button {
            visible: root.why === "filtered"
            type: "primary"
            size: "large"
            text: qsTr("Show all")
            onClicked: root.showAllRequested()
        }
    }
}
