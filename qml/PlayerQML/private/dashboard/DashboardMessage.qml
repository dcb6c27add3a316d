// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "limits.js" as Limits

/// A word on how something ended, with what it was below; it goes by itself.
Rectangle {
    id: root

    property string text
    property string detail
    property bool isError: false

    function succeed(what) {
        tell("success", what, false);
    }

    function fail(what, word) {
        tell(word || "error", what, true);
    }

    function tell(word, what, failed) {
        isError = failed;
        detail = what;
        text = word;
        clock.limit = failed ? Limits.failureMessage : Limits.successMessage;
        clock.restart();
    }

    objectName: "dashboardMessage"
    width: Math.min(parent.width - 4 * BGUI.Theme.unit, 60 * BGUI.Theme.unit)
    height: lines.height + 2 * BGUI.Theme.unit
    visible: text !== ""
    z: 10
    radius: BGUI.Theme.radius("large")
    color: BGUI.Theme.bar
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text + ". " + detail

    BGUI.FontAwesomeIcon {
        id: icon
        x: 2 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: "xlarge"
        faIcon: root.isError ? "fa-exclamation-circle" : "fa-check-circle"
        color: root.isError ? "#ff9a94" : "#8fe0a6"
    }

    Column {
        id: lines
        anchors.left: icon.right
        anchors.right: parent.right
        anchors.margins: 2 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter

        BGUI.Label {
            width: parent.width
            text: root.text
            textFormat: Text.PlainText
            strong: true
            color: BGUI.Theme.barInk
        }

        BGUI.Label {
            width: parent.width
            visible: text !== ""
            text: root.detail
            textFormat: Text.PlainText
            color: BGUI.Theme.barInk
        }
    }

    ClockTimer {
        id: clock
        onPassed: root.text = ""
    }
}
