// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Weather: the place, and what is told of it.
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
            name: "place"
            label: qsTr("Place")
        }
        NumberRow {
            name: "lat"
            label: qsTr("Latitude")
            from: -90
            to: 90
            decimals: 4
            step: 0.1
            suffix: "°"
        }
        NumberRow {
            name: "lon"
            label: qsTr("Longitude")
            from: -180
            to: 180
            decimals: 4
            step: 0.1
            suffix: "°"
        }
        CheckRow {
            name: "showIcon"
            label: qsTr("Icon")
        }
        CheckRow {
            name: "showDescription"
            label: qsTr("Description")
        }
        CheckRow {
            name: "fahrenheit"
            label: qsTr("Fahrenheit")
        }
        ChoiceRow {
            name: "fontFamily"
            label: qsTr("Font")
            choices: form.families.map(family => ({ text: family, is: family }))
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        LocaleRow {
        }
        ServiceSection {
            name: "service"
        }
        PlateSection {}
        PlaceSection {}
    }
}
