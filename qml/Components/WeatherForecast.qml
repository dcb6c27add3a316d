// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/clock"
import "private/feed"
import "private/clock/clock.js" as Clock
import "private/feed/addresses.js" as Addresses
import "private/feed/days.js" as Days

/// The weather of a place on the coming days, side by side or one below the other. The last answer stays while there is
/// no network, without the days that have passed; days of which nothing is known show their names alone.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "WeatherForecast {
    width: 640
    height: 220
    color: '#17212b'
    radius: 12
    lat: 52.52
    lon: 13.41
    days: 5
    isVertical: false
    textColor: 'white'
    textPixelSize: 28
}"

    /// How many days are shown, from today on.
    property int days: 5
    /// The place's latitude (north is positive) and longitude (east is positive) in degrees.
    property real lat: 52.52
    property real lon: 13.41
    /// Whether the days stand one below the other.
    property bool isVertical: false
    property color textColor: "white"
    /// Height of the text in pixels; it shrinks where the days have too little room.
    property int textPixelSize: 28
    property bool fahrenheit: false
    /// Address of the service, with {lat} and {lon} in it; or a file of the project with such an answer.
    property string service: Addresses.weather
    /// Language and country of the names of the days, as "de_DE"; empty for the system's.
    property string localeName: ""

    width: 640
    height: 220
    color: "#17212b"
    radius: 12
    Component.onCompleted: editor = Qt.createComponent("WeatherForecastEditor.qml")

    WeatherClient {
        id: client
        lat: root.lat
        lon: root.lon
        service: root.service
    }

    Ticker {
        id: ticker
        period: Clock.period("d")
        running: root.visible
    }

    Grid {
        id: grid
        readonly property int count: Math.max(1, Math.min(14, root.days))
        readonly property real margin: Math.min(root.width, root.height) * 0.06

        anchors.fill: parent
        anchors.margins: margin
        columns: root.isVertical ? 1 : count

        Repeater {
            model: Days.shown(client.weather, grid.count, ticker.time.getTime())

            ForecastDay {
                width: root.isVertical ? grid.width : grid.width / grid.count
                height: root.isVertical ? grid.height / grid.count : grid.height
                day: modelData
                isAlone: client.weather === null
                isRow: root.isVertical
                color: root.textColor
                pixelSize: root.textPixelSize
                fahrenheit: root.fahrenheit
                locale: Qt.locale(root.localeName)
            }
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "WeatherForecast"
        }
    }
}
