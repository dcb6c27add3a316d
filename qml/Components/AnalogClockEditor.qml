// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of AnalogClock: its face and hands.
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

        ColorRow {
            name: "color"
            label: qsTr("Second hand")
        }
        CheckRow {
            name: "lightMode"
            label: qsTr("Light dial")
        }
        CheckRow {
            name: "showSeconds"
            label: qsTr("Seconds")
        }
        CheckRow {
            name: "running"
            label: qsTr("Running")
        }
        PlaceSection {}
    }
}
