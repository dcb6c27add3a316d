// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A busy indicator with its text, over the whole parent, which takes no presses meanwhile. It can end with a message
/// that stays for a moment. Shown while `running` or while such a message stands.
Item {
    id: root

    property bool running: false
    property string text
    // 0 to 1 shows a bar of progress, below 0 none.
    property real progress: -1
    // How long an ending message stays, in milliseconds.
    property int messageTime: 2500
    // The ending message that stands now, and whether it tells of a failure.
    property string message
    property bool hasFailed: false

    readonly property bool ending: message !== ""

    // The ending message has gone.
    signal finished()

    function start(label) {
        linger.stop();
        message = "";
        text = label;
        progress = -1;
        running = true;
    }

    // Stops; a message that is not empty is shown for a moment, as an error's if `isError`.
    function finish(label, isError) {
        running = false;
        hasFailed = isError === true;
        message = label || "";
        if (ending)
            linger.restart();
        else
            finished();
    }

    anchors.fill: parent
    z: 100
    visible: running || ending
    Accessible.role: Accessible.Indicator
    Accessible.name: ending ? message : text

    Timer {
        id: linger
        interval: root.messageTime
        onTriggered: {
            root.message = "";
            root.finished();
        }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.strongInk
        opacity: 0.35
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.max(0, Math.min(parent.width - 4 * Theme.unit, 36 * Theme.unit))
        height: content.height + 5 * Theme.unit
        radius: Theme.radius("xlarge")
        color: Theme.surface

        Column {
            id: content
            anchors.centerIn: parent
            width: Math.max(0, parent.width - 4 * Theme.unit)
            spacing: 1.5 * Theme.unit

            Spinner {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 5 * Theme.unit
                height: width
                visible: !root.ending
            }

            FontAwesomeIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.ending
                size: "h1"
                faIcon: root.hasFailed ? "fa-exclamation-circle" : "fa-check-circle"
                color: root.hasFailed ? Theme.danger : Theme.success
            }

            Label {
                width: parent.width
                visible: text !== ""
                size: "large"
                text: root.ending ? root.message : root.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
            }

            ProgressBar {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, 20 * Theme.unit)
                visible: root.running && root.progress >= 0
                value: root.progress
            }
        }
    }
}
