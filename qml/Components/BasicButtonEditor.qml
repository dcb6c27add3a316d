// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of BasicButton: its text and look, and what it does.
Item {
    id: root

    property bool radEditor: false
    property string size: radEditor ? "base" : "large"

    implicitWidth: form.implicitWidth
    implicitHeight: form.implicitHeight

    PanelForm {
        id: form
        anchors.fill: parent
        panel: root

        TextRow {
            name: "text"
            label: qsTr("Text")
        }
        ChoiceRow {
            name: "type"
            label: qsTr("Style")
            choices: [
                { text: qsTr("Default"), is: "default" },
                { text: qsTr("Primary"), is: "primary" },
                { text: qsTr("Success"), is: "success" },
                { text: qsTr("Info"), is: "info" },
                { text: qsTr("Warning"), is: "warning" },
                { text: qsTr("Danger"), is: "danger" },
                { text: qsTr("Link"), is: "link" }
            ]
        }
        ChoiceRow {
            name: "size"
            label: qsTr("Size")
            choices: [
                { text: qsTr("Very small"), is: "xsmall" },
                { text: qsTr("Small"), is: "small" },
                { text: qsTr("Normal"), is: "base" },
                { text: qsTr("Large"), is: "large" },
                { text: qsTr("Very large"), is: "xlarge" }
            ]
        }
        TextRow {
            name: "faIcon"
            label: qsTr("Icon")
            placeholderText: qsTr("fa-star")
        }
        CodeRow {
            name: "onClicked"
            label: qsTr("On click")
        }
        PlaceSection {}
    }
}
