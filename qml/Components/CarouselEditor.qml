// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Carousel: its pictures, and how it turns.
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
            name: "pathItemCount"
            label: qsTr("Visible pictures")
            from: 1
            to: 15
        }
        TimeRow {
            name: "showTime"
            label: qsTr("Duration")
        }
        PlaceSection {}
    }
}
