// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/clock"
import "private/clock/clock.js" as Clock
import "private/presence.js" as Presence

/// A clock, or a date: any format of time and date, in the words of the system's language. It wakes up only when its
/// text can change, and at least once a minute, so that it follows when the computer's clock is set.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "DigitalClock {
    width: 320
    height: 120
    color: '#17212b'
    radius: 12
    format: 'hh:mm'
    textColor: 'white'
    pixelSize: 72
}"

    /// What is shown, in the letters of Qt's date and time formats: "hh:mm:ss", "dddd d MMMM".
    property string format: "hh:mm"
    property color textColor: "white"
    /// Height of the text in pixels; it shrinks where the clock is too small.
    property int pixelSize: 72
    property string fontFamily: "Open Sans"
    property alias horizontalAlignment: face.horizontalAlignment
    /// Language and country, as "de_DE"; empty for the system's.
    property string localeName: ""

    width: 320
    height: 120
    color: "#17212b"
    radius: 12
    Component.onCompleted: editor = Qt.createComponent("DigitalClockEditor.qml")

    Text {
        id: face
        anchors.fill: parent
        anchors.margins: Math.min(8, root.height / 10)
        text: ticker.time.toLocaleString(Qt.locale(root.localeName), root.format)
        color: root.textColor
        font.family: root.fontFamily
        font.pixelSize: Math.max(1, root.pixelSize)
        minimumPixelSize: Math.min(8, font.pixelSize)
        fontSizeMode: Text.Fit
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    Ticker {
        id: ticker
        period: Clock.period(root.format)
        running: root.visible && Presence.presenceOf(root) === Presence.shown
    }

    Component {
        id: preview

        TextPreview {
            text: face.text
            family: root.fontFamily
        }
    }
}
