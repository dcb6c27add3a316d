// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    property date now: new Date()
    readonly property int minute: now.getHours() * 60 + now.getMinutes()
    readonly property bool isNight: minute >= 30 && minute < 285
    readonly property var timetables: isNight ? [night] : [rails, roads]
    // Line, colour, destination, platform, minutes between two, minutes past the hour, the day's first and last.
    readonly property var rails: ({ title: "Metro", lines: [
        ["1", "#d93a43", "Northfields", "1", 4, 1], ["1", "#d93a43", "Lighthouse", "2", 4, 3],
        ["2", "#2f6fde", "Castle", "3", 6, 2], ["2", "#2f6fde", "Airport", "4", 6, 5],
        ["4", "#23835a", "Hill View", "5", 8, 3], ["4", "#23835a", "Shipyard", "6", 8, 7],
        ["7", "#f0a92c", "Opera", "7", 10, 4], ["7", "#f0a92c", "Beach", "8", 10, 9]] })
    readonly property var roads: ({ title: "Bus and ferry", lines: [
        ["12", "#7d56c2", "Old Brewery", "A", 10, 2], ["18", "#7d56c2", "Hospital", "A", 12, 7],
        ["21", "#7d56c2", "Botanical Garden", "B", 15, 6], ["34", "#7d56c2", "Stadium", "C", 10, 8],
        ["40", "#7d56c2", "Old Airfield", "D", 15, 11], ["52", "#7d56c2", "Vineyards", "D", 20, 13],
        ["F1", "#0f7f8c", "Lighthouse", "Pier", 20, 10, 400, 1310], ["F2", "#0f7f8c", "Seal Island", "Pier", 60, 30, 450, 1170]] })
    readonly property var night: ({ title: "Night lines", lines: [
        ["N1", "#d93a43", "Northfields", "A", 30, 5], ["N2", "#2f6fde", "Airport", "A", 20, 12],
        ["N3", "#2f6fde", "Castle", "B", 30, 20], ["N4", "#23835a", "Hill View", "B", 30, 10],
        ["N5", "#23835a", "Shipyard", "C", 60, 25], ["N7", "#f0a92c", "Beach", "C", 30, 15],
        ["N9", "#7d56c2", "Hospital", "D", 60, 40], ["N12", "#7d56c2", "Stadium", "D", 60, 50]] })
    readonly property var notices: [
        ["4", "#23835a", "Saturday and Sunday: buses run instead of line 4"],
        ["F2", "#0f7f8c", "The night ferry sails again from the first of April"],
        ["\uf0f2", "#10192e", "Please keep your luggage with you"]
    ]

    // Texts of the columns for the next departure and the one after it.
    function departures(every, at, first, last) {
        const next = minute < first ? first - minute : (every + at - minute % every) % every;
        if (minute < first - every || minute + next > last)
            return [Qt.formatTime(new Date(2000, 0, 1, 0, first), "hh:mm"), ""];
        return [next > 0 ? next + " min" : "now", minute + next + every <= last ? next + every + " min" : ""];
    }

    width: 1920
    height: 1080
    color: "#10192e"

    component Head: Label { color: "#b4c2dd"; font.pixelSize: 32 }
    component Cell: Label { y: 11; color: "white"; horizontalAlignment: Text.AlignRight; font { bold: true; pixelSize: 48 } }
    component Sign: Rectangle {
        property alias text: line.text
        property alias ink: line.color

        width: 88; height: 64; radius: 12

        Label { id: line; anchors.centerIn: parent; color: "white"; font { bold: true; pixelSize: 40 } }
    }

    Timer { interval: 1000; running: true; repeat: true; onTriggered: root.now = new Date() }

    Label { x: 72; y: 24; text: "Central"; color: "white"; font { bold: true; pixelSize: 80 } }
    Clock { x: 720; y: 32; width: 768; height: 104; color: "#b4c2dd"; horizontalAlignment: Text.AlignRight; font.pixelSize: 48; format: "dddd, d MMMM" }
    Clock { x: 1536; y: 24; width: 312; height: 112; color: "#ffcf66"; horizontalAlignment: Text.AlignRight; font.pixelSize: 96 }

    Show {
        x: 72; y: 152; width: 1128; height: 752
        durations: root.isNight ? [86400000] : [14000, 14000]
        fadeTime: 800

        Repeater {
            model: root.timetables

            Item {
                width: 1128
                height: 752

                Head { x: 16; text: modelData.title }
                Head { x: 568; width: 160; text: "Platform"; horizontalAlignment: Text.AlignHCenter }
                Head { x: 736; width: 184; text: "Next"; horizontalAlignment: Text.AlignRight }
                Head { x: 920; width: 184; text: "Then"; horizontalAlignment: Text.AlignRight }

                Repeater {
                    model: modelData.lines

                    Rectangle {
                        readonly property var times: root.departures(modelData[4], modelData[5], modelData[6] || 0, modelData[7] || 1440)

                        y: 48 + 88 * index
                        width: 1128; height: 88; radius: 12
                        color: index % 2 ? "transparent" : "#19264a"

                        Sign { x: 16; y: 12; color: modelData[1]; text: modelData[0]; ink: modelData[1] === "#f0a92c" ? "#10192e" : "white" }
                        Cell { x: 128; text: modelData[2] }
                        Cell { x: 568; width: 160; text: modelData[3]; horizontalAlignment: Text.AlignHCenter; font.bold: false }
                        Cell { x: 736; width: 184; text: parent.times[0]; color: "#ffcf66" }
                        Cell { x: 920; width: 184; text: parent.times[1]; font.bold: false }
                    }
                }
            }
        }
    }

    Image { x: 1248; y: 168; width: 600; height: 736; source: "../../../demos/Transport Board/images/network.png"; fillMode: Image.PreserveAspectFit; mipmap: true }

    Show {
        y: 928; width: 1920; height: 152
        durations: [10000, 10000, 10000]
        fadeTime: 800

        Repeater {
            model: root.notices

            Rectangle {
                width: 1920; height: 152
                color: "#f5f3ec"

                Sign { x: 88; y: 44; color: modelData[1]; text: modelData[0] }
                Label { x: 200; height: 152; text: modelData[2]; color: "#10192e"; verticalAlignment: Text.AlignVCenter; font { bold: true; pixelSize: 48 } }
            }
        }
    }
}
