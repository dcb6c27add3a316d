// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Who is expected today: the next three by the clock, the first of them marked. Those past make room.
Rectangle {
    id: root

    /// Those expected, in the order of their times, as objects: time ("hh:mm"), name and place.
    property var guests: []
    property string time: Qt.formatTime(new Date(), "hh:mm")

    width: 576
    height: 344
    radius: 12
    color: "#ffffff"

    Timer {
        interval: 1000
        running: root.visible
        repeat: true
        onTriggered: root.time = Qt.formatTime(new Date(), "hh:mm")
    }

    Text {
        x: 36
        y: 20
        text: "Expected today"
        color: "#14233a"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 34
    }

    Text {
        anchors.centerIn: parent
        text: "Nobody else today"
        color: "#56606f"
        opacity: list.height > 0 ? 0 : 1
        font.family: "Manrope"
        font.pixelSize: 30

        Behavior on opacity {
            NumberAnimation { duration: 600 }
        }
    }

    Item {
        y: 80
        width: root.width
        height: 240
        clip: true

        Column {
            id: list
            x: 20
            width: root.width - 40

            move: Transition {
                NumberAnimation { property: "y"; duration: 600; easing.type: Easing.InOutCubic }
            }

            Repeater {
                model: root.guests

                Rectangle {
                    id: row

                    readonly property bool isPast: modelData.time < root.time
                    readonly property bool isNext: !isPast && (index === 0
                                                               || root.guests[index - 1].time < root.time)

                    width: list.width
                    height: 80
                    radius: 8
                    color: isNext ? "#14233a" : "transparent"
                    opacity: isPast ? 0 : 1
                    visible: opacity > 0

                    Behavior on opacity {
                        NumberAnimation { duration: 600 }
                    }

                    Behavior on color {
                        ColorAnimation { duration: 600 }
                    }

                    Text {
                        x: 16
                        y: 5
                        text: modelData.time
                        color: row.isNext ? "#f3b765" : "#8a4a12"
                        font.family: "Manrope"
                        font.bold: true
                        font.pixelSize: 30
                    }

                    Text {
                        x: 128
                        y: 5
                        width: row.width - x - 16
                        text: modelData.name
                        color: row.isNext ? "#ffffff" : "#14233a"
                        elide: Text.ElideRight
                        font.family: "Manrope"
                        font.bold: true
                        font.pixelSize: 30
                    }

                    Text {
                        x: 128
                        y: 43
                        width: row.width - x - 16
                        text: modelData.place
                        color: row.isNext ? "#c3cddb" : "#56606f"
                        elide: Text.ElideRight
                        font.family: "Manrope"
                        font.pixelSize: 22
                    }
                }
            }
        }
    }
}
