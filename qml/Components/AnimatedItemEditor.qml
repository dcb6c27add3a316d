// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of AnimatedItem: how it moves.
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

        ChoiceRow {
            name: "motion"
            label: qsTr("Animation")
            choices: ["float", "sway", "swing", "pulse", "spin", "turn", "shake"]
                .map(name => ({ text: Values.words(name), is: name }))
        }
        SliderRow {
            name: "strength"
            label: qsTr("Strength")
            to: 4
        }
        TimeRow {
            name: "time"
            label: qsTr("Duration")
        }
        CheckRow {
            name: "running"
            label: qsTr("Running")
        }
        PlateSection {}
        PlaceSection {}
    }
}
