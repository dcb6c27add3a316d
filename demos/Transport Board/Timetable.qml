// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A page of departures: a line of the table for each, with the next two of them counted down by the clock.
Item {
    id: root

    property string title
    /// What leaves, as objects: line, color of its sign and ink (its text's colour, else white), to, platform, every
    /// (minutes between two), at (minutes past the full hour of one of them), and first and last (minutes since
    /// midnight) of what does not leave all day.
    property var departures: []
    property date now: new Date()
    readonly property int minute: now.getHours() * 60 + now.getMinutes()

    width: 1128
    height: 752

    component Head: Text {
        color: "#b4c2dd"
        font.family: "Manrope"
        font.pixelSize: 32
    }

    component Cell: Text {
        anchors.verticalCenter: parent.verticalCenter
        color: "#ffffff"
        horizontalAlignment: Text.AlignRight
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 48
    }

    Timer {
        interval: 1000
        running: root.visible
        repeat: true
        triggeredOnStart: true
        onTriggered: root.now = new Date()
    }

    Head {
        x: 16
        text: root.title
    }

    Head {
        x: 568
        width: 160
        text: "Platform"
        horizontalAlignment: Text.AlignHCenter
    }

    Head {
        x: 736
        width: 184
        text: "Next"
        horizontalAlignment: Text.AlignRight
    }

    Head {
        x: 920
        width: 184
        text: "Then"
        horizontalAlignment: Text.AlignRight
    }

    Repeater {
        model: root.departures

        Rectangle {
            id: row

            readonly property int every: modelData.every
            readonly property int first: modelData.first || 0
            readonly property int last: modelData.last || 1440
            // Minutes until the next one. Long before the day's first one and after its last, the time of the first is
            // shown instead.
            readonly property int next: root.minute < first ? first - root.minute
                                                            : (every + modelData.at - root.minute % every) % every
            readonly property bool leaves: root.minute >= first - every && root.minute + next <= last
            readonly property bool leavesTwice: leaves && root.minute + next + every <= last

            y: 48 + 88 * index
            width: root.width
            height: 88
            radius: 12
            color: index % 2 ? "transparent" : "#19264a"

            Rectangle {
                x: 16
                y: 12
                width: 88
                height: 64
                radius: 12
                color: modelData.color

                Text {
                    anchors.centerIn: parent
                    text: modelData.line
                    color: modelData.ink || "#ffffff"
                    font.family: "Manrope"
                    font.bold: true
                    font.pixelSize: 40
                }
            }

            Cell {
                x: 128
                text: modelData.to
            }

            Cell {
                x: 568
                width: 160
                text: modelData.platform
                horizontalAlignment: Text.AlignHCenter
                font.bold: false
            }

            Cell {
                x: 736
                width: 184
                text: !row.leaves ? Qt.formatTime(new Date(2000, 0, 1, 0, row.first), "hh:mm")
                                  : row.next > 0 ? row.next + " min" : "now"
                color: row.leaves ? "#ffcf66" : "#b4c2dd"
            }

            Cell {
                x: 920
                width: 184
                text: row.leavesTwice ? row.next + row.every + " min" : ""
                font.bold: false
            }
        }
    }
}
