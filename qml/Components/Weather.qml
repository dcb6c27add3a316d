// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/clock"
import "private/feed"
import "private/clock/clock.js" as Clock
import "private/feed/addresses.js" as Addresses
import "private/feed/forecast.js" as Forecast

/// The weather of a place as it is now: drawing, temperature, description. The last answer stays while there is no
/// network; before the first one the place and the date stand there.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Weather {
    width: 420
    height: 200
    color: '#17212b'
    radius: 12
    place: 'Berlin'
    lat: 52.52
    lon: 13.41
    showDescription: true
    showIcon: true
}"

    /// Name of the place, as it is shown; may be empty.
    property string place: "Berlin"
    /// Its latitude (north is positive) and longitude (east is positive) in degrees.
    property real lat: 52.52
    property real lon: 13.41
    /// Whether the weather is also told in words, and drawn.
    property bool showDescription: true
    property bool showIcon: true
    property string fontFamily: "Open Sans"
    property color textColor: "white"
    property bool fahrenheit: false
    /// Address of the service, with {lat} and {lon} in it; or a file of the project with such an answer.
    property string service: Addresses.weather
    /// Language and country of the date, as "de_DE"; empty for the system's.
    property string localeName: ""

    readonly property var current: client.weather ? client.weather.current : null
    /// Name of the drawing; "" while nothing is known, and for a weather that has none.
    readonly property string icon: current && showIcon ? Forecast.icon(current.code, current.isDay) : ""
    readonly property bool isTall: height > width * 0.75
    readonly property real measure: Math.max(1, isTall ? Math.min(width * 0.8, height * 0.62)
                                                      : Math.min(height, width * 0.48))

    width: 420
    height: 200
    color: "#17212b"
    radius: 12
    Component.onCompleted: editor = Qt.createComponent("WeatherEditor.qml")

    WeatherClient {
        id: client
        lat: root.lat
        lon: root.lon
        service: root.service
    }

    Ticker {
        id: ticker
        period: Clock.period("d")
        running: root.visible && !root.current
    }

    Grid {
        id: grid
        anchors.centerIn: parent
        columns: root.isTall ? 1 : 2
        spacing: root.isTall ? 0 : root.measure * 0.1
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Image {
            id: picture
            width: root.measure * 0.72
            height: width
            visible: root.icon !== ""
            mipmap: true
            source: root.icon === "" ? "" : "icons/" + root.icon + ".png"
        }

        WeatherText {
            room: root.width * 0.92 - (root.icon !== "" && !root.isTall ? picture.width + grid.spacing : 0)
            isCentred: root.isTall
            measure: root.measure
            color: root.textColor
            family: root.fontFamily
            headline: root.current ? Forecast.temperature(root.current.temperature, root.fahrenheit)
                                   : ticker.time.toLocaleDateString(Qt.locale(root.localeName), "ddd")
            detail: !root.current ? ticker.time.toLocaleDateString(Qt.locale(root.localeName), "d MMMM")
                                  : root.showDescription ? Forecast.description(root.current.code) : ""
            place: root.place
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Weather"
        }
    }
}
