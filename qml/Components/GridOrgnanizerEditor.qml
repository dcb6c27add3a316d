// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of GridOrganizer: its pictures, and how they are laid out.
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

        EntriesRow {
            name: "model"
            label: qsTr("Pictures")
            main: "image"
            fields: [
                { name: "name", label: qsTr("Name"), kind: "text" },
                { name: "image", label: qsTr("Picture"), kind: "picture" }
            ]
        }
        NumberRow {
            name: "columns"
            label: qsTr("Columns")
            from: 1
            to: 20
        }
        NumberRow {
            name: "spacing"
            label: qsTr("Spacing")
            to: 200
            suffix: " px"
        }
        CheckRow {
            name: "animated"
            label: qsTr("Animated")
        }
        TimeRow {
            name: "pageTime"
            label: qsTr("Page duration")
        }
        PlaceSection {}
    }
}
