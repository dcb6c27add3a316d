// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "days.js" as Days
import "forecast.js" as Forecast

/// One day of a WeatherForecast: its name, drawing, highest and lowest temperature, one below the other or in a row.
Item {
    id: root

    /// A day as forecast.js reads it; with a date alone it shows its name, above where the rest stands on other days.
    property var day
    property bool isAlone: false
    property bool isRow: false
    property color color: "white"
    property int pixelSize: 28
    property bool fahrenheit: false
    property var locale: Qt.locale()

    readonly property bool isKnown: day.code !== undefined
    readonly property string icon: isKnown ? Forecast.icon(day.code, true) : ""
    readonly property real fontSize: Math.max(1, Math.min(pixelSize, isRow ? height * 0.5 : height * 0.17,
                                                          isRow ? width * 0.08 : width * 0.3))

    Grid {
        anchors.centerIn: parent
        columns: root.isRow ? 4 : 1
        horizontalItemAlignment: root.isRow ? Grid.AlignLeft : Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        DayText {
            day: root
            room: root.width * (root.isRow ? 0.42 : 1)
            text: Days.dateOf(root.day).toLocaleDateString(root.locale, root.isRow ? "dddd" : "ddd")
        }

        Image {
            width: Math.max(0, root.isRow ? Math.min(root.height * 0.9, root.width * 0.18, root.fontSize * 2.6)
                                          : Math.min(root.width * 0.8, root.height - 4.2 * root.fontSize))
            height: width
            visible: root.isRow || !root.isAlone
            mipmap: true
            source: root.icon === "" ? "" : "../../icons/" + root.icon + ".png"
        }

        DayText {
            day: root
            room: root.width * (root.isRow ? 0.18 : 1)
            horizontalAlignment: root.isRow ? Text.AlignRight : Text.AlignHCenter
            visible: root.isRow || !root.isAlone
            text: root.isKnown ? Forecast.temperature(root.day.high, root.fahrenheit) : ""
            font.weight: Font.DemiBold
        }

        DayText {
            day: root
            room: root.width * (root.isRow ? 0.18 : 1)
            horizontalAlignment: root.isRow ? Text.AlignRight : Text.AlignHCenter
            visible: root.isRow || !root.isAlone
            text: root.isKnown ? Forecast.temperature(root.day.low, root.fahrenheit) : ""
            opacity: 0.7
            font.pixelSize: root.fontSize * 0.85
        }
    }
}
