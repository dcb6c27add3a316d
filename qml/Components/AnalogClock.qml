// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/clock"
import "private/presence.js" as Presence

/// A clock face with three hands. It wakes up once a second, or once a minute without second hand.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "AnalogClock {
    width: 320
    height: 320
    color: '#e0522f'
    lightMode: true
    running: true
}"

    /// Colour of the second hand and the hub.
    property color color: "#e0522f"
    /// A light face with dark hands, or a dark one with light hands.
    property bool lightMode: true
    /// Whether the hands move.
    property bool running: true
    property bool showSeconds: true

    readonly property real size: Math.max(0, Math.min(width, height))
    readonly property color ground: lightMode ? "#fbfcfd" : "#17212b"
    readonly property color ink: lightMode ? "#1d2630" : "#f4f7fa"
    readonly property int seconds: ticker.time.getSeconds()
    readonly property real minutes: ticker.time.getMinutes() + (showSeconds ? seconds / 60 : 0)
    readonly property real hours: ticker.time.getHours() % 12 + ticker.time.getMinutes() / 60

    width: 320
    height: 320
    Component.onCompleted: editor = Qt.createComponent("AnalogClockEditor.qml")

    Ticker {
        id: ticker
        period: root.showSeconds ? 1000 : 60000
        running: root.running && root.visible && Presence.presenceOf(root) === Presence.shown
    }

    Rectangle {
        anchors.centerIn: parent
        width: root.size
        height: root.size
        radius: root.size / 2
        color: root.ground
        border.color: root.ink
        border.width: Math.max(1, root.size * 0.018)
        antialiasing: true

        Repeater {
            model: 60

            ClockHand {
                readonly property bool isHour: index % 5 === 0

                angle: index * 6
                from: root.size * (isHour ? 0.37 : 0.42)
                length: root.size * (isHour ? 0.08 : 0.03)
                thickness: root.size * (isHour ? 0.018 : 0.007)
                color: root.ink
                opacity: isHour ? 1 : 0.55
            }
        }

        ClockHand {
            angle: root.hours * 30
            from: -root.size * 0.05
            length: root.size * 0.3
            thickness: root.size * 0.035
            color: root.ink
        }

        ClockHand {
            angle: root.minutes * 6
            from: -root.size * 0.05
            length: root.size * 0.43
            thickness: root.size * 0.024
            color: root.ink
        }

        ClockHand {
            angle: root.seconds * 6
            from: -root.size * 0.09
            length: root.size * 0.49
            thickness: root.size * 0.009
            color: root.color
            visible: root.showSeconds
        }

        Rectangle {
            anchors.centerIn: parent
            width: root.size * 0.045
            height: width
            radius: width / 2
            color: root.color
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "AnalogClock"
        }
    }
}
