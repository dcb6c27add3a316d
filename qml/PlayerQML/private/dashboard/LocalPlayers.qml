// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import ".."
import "limits.js" as Limits

/// The players of the local network, what can be exchanged with them, and how an exchange goes. Starts this player's
/// part of it.
FocusScope {
    id: root

    readonly property var status: exchange.status
    readonly property bool isBusy: status !== null && status.running
    readonly property real gap: 2 * BGUI.Theme.unit
    readonly property bool isNarrow: width < 90 * BGUI.Theme.unit
    // Whether the other player is waited for for long.
    property bool isSilent: false

    // A project is to be chosen for begin().
    signal projectWanted(string player, bool isSending)

    function begin(player, isSending, project) {
        notice.text = "";
        if (isSending)
            exchange.send(player, project);
        else
            exchange.fetch(player, project);
    }

    // Comes back when the exchange is over, so this is the last that an event does.
    function connectTo(player) {
        notice.text = "";
        CAPI.setConnectedPlayerName(player);
    }

    // The keyboard follows what goes on: what had it takes no input while an exchange is running.
    function takeFocus() {
        (isBusy ? strip : list).forceActiveFocus(Qt.TabFocusReason);
    }

    function tellOutcome() {
        notice.type = status.succeeded ? "success" : "danger";
        notice.text = status.outcome;
    }

    function progressText() {
        const what = (status.sending ? qsTr("Sending %1 to %2") : qsTr("Fetching %1 from %2"))
                     .arg(status.project).arg(status.player);
        if (isSilent)
            return what + qsTr(": no answer yet…");
        if (status.files === 0)
            return what + "…";
        return what + qsTr(": %1 of %2 files, %3 MB").arg(status.filesDone).arg(status.files)
                      .arg((status.bytes / 1e6).toFixed(1));
    }

    objectName: "localPlayers"
    implicitHeight: content.height + gap
    Component.onCompleted: CAPI.startLocalServer()
    onIsBusyChanged: {
        isSilent = false;
        if (activeFocus)
            Qt.callLater(takeFocus);
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    Rectangle {
        width: parent.width
        height: Math.max(1, dp)
        color: BGUI.Theme.line
    }

    Column {
        id: content
        x: root.gap
        y: root.gap / 2
        width: parent.width - 2 * root.gap
        spacing: BGUI.Theme.unit

        Item {
            width: parent.width
            height: 6 * BGUI.Theme.unit

            BGUI.FontAwesomeIcon {
                id: icon
                anchors.verticalCenter: parent.verticalCenter
                size: "large"
                faIcon: "fa-sitemap"
                color: BGUI.Theme.mutedInk
            }

            BGUI.Label {
                id: heading
                anchors.left: icon.right
                anchors.leftMargin: BGUI.Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                width: root.isNarrow && list.count > 0 ? 0 : implicitWidth
                visible: width > 0
                text: qsTr("On this network")
                textFormat: Text.PlainText
                strong: true
            }

            BGUI.Label {
                anchors.left: heading.right
                anchors.right: parent.right
                anchors.leftMargin: root.gap
                anchors.verticalCenter: parent.verticalCenter
                visible: list.count === 0
                text: qsTr("No other player is here yet. Players meet by themselves where their deployment file lists "
                           + "addresses to announce to.")
                textFormat: Text.PlainText
                maximumLineCount: 2
                elide: Text.ElideRight
                muted: true
            }

            ListView {
                id: list
                objectName: "localPlayerList"
                anchors.left: heading.right
                anchors.right: parent.right
                anchors.leftMargin: root.gap
                height: parent.height
                orientation: ListView.Horizontal
                spacing: root.gap
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: 0
                model: exchange.players

                delegate: LocalPlayer {
                    height: list.height
                    player: modelData
                    address: exchange.addressOf(modelData)
                    onActiveFocusChanged: {
                        if (activeFocus)
                            list.currentIndex = index;
                    }
                    enabled: !root.isBusy
                    onSendRequested: root.projectWanted(modelData, true)
                    onFetchRequested: root.projectWanted(modelData, false)
                    onConnectRequested: Qt.callLater(root.connectTo, modelData)
                }
            }
        }

        ProgressStrip {
            id: strip
            width: parent.width
            visible: root.isBusy
            text: root.isBusy ? root.progressText() : ""
            progress: root.isBusy && root.status.files > 0 ? root.status.filesDone / root.status.files : 0
            onCanceled: exchange.cancel()
        }

        BGUI.Notice {
            id: notice
            objectName: "exchangeOutcome"
            visible: text !== "" && !root.isBusy
            closable: true
        }
    }

    Exchange {
        id: exchange
    }

    Connections {
        target: root.status
        function onFinished() { root.tellOutcome(); }
    }

    ClockTimer {
        readonly property string progress: root.isBusy ? root.status.filesDone + " " + root.status.bytes : ""

        limit: Limits.silence
        onPassed: root.isSilent = true
        onProgressChanged: {
            root.isSilent = false;
            if (root.isBusy)
                restart();
            else
                stop();
        }
    }
}
