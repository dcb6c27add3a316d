// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Fireworks: its rockets.
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

        NumberRow {
            name: "number"
            label: qsTr("Rockets")
            from: 0
            to: 12
        }
        FileRow {
            name: "source"
            label: qsTr("Spark")
        }
        PlaceSection {}
    }
}
