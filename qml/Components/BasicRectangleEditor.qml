// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of BasicRectangle: its colours and edges.
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

        PlateSection {}
        Section {
            title: qsTr("Border")

            ColorRow {
                name: "border.color"
                label: qsTr("Colour")
            }
            NumberRow {
                name: "border.width"
                label: qsTr("Width")
                to: 500
                suffix: " px"
            }
        }
        PlaceSection {}
    }
}
