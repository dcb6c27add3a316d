// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of WeatherForecast: the place, and what is told of its days.
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
        NumberRow {
            name: "days"
            label: qsTr("Days")
            from: 1
            to: 14
        }
        CheckRow {
            name: "isVertical"
            label: qsTr("Vertical")
        }
        CheckRow {
            name: "fahrenheit"
            label: qsTr("Fahrenheit")
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        NumberRow {
            name: "textPixelSize"
            label: qsTr("Size")
            from: 1
            to: 500
            suffix: " px"
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
