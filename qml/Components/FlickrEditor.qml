// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Flickr: what the photos are about, and how they are shown.
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
            name: "tags"
            label: qsTr("Subjects")
            placeholderText: qsTr("words, separated by commas")
        }
        ChoiceRow {
            name: "quality"
            label: qsTr("Quality")
            choices: [
                { text: qsTr("Small"), is: "small" },
                { text: qsTr("Medium"), is: "medium" },
                { text: qsTr("Large"), is: "large" }
            ]
        }
        CheckRow {
            name: "showTitle"
            label: qsTr("Title and author")
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        TimeRow {
            name: "showTime"
            label: qsTr("Duration")
        }
        ServiceSection {
            name: "service"
        }
        PlateSection {}
        PlaceSection {}
    }
}
