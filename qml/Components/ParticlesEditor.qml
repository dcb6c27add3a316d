// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Particles: what they are, and how they move.
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

        FileRow {
            name: "source"
            label: qsTr("Picture")
        }
        ColorRow {
            name: "color"
            label: qsTr("Colour")
        }
        SliderRow {
            name: "emitRate"
            label: qsTr("Per second")
            to: 200
            decimals: 0
        }
        TimeRow {
            name: "lifeSpan"
            label: qsTr("Lifetime")
        }
        NumberRow {
            name: "size"
            label: qsTr("Size")
            from: 1
            to: 1000
            suffix: " px"
        }
        SliderRow {
            name: "velocity"
            label: qsTr("Speed")
            to: 1000
            decimals: 0
        }
        SliderRow {
            name: "direction"
            label: qsTr("Direction")
            to: 360
            decimals: 0
            suffix: "°"
        }
        PlaceSection {}
    }
}
