// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1920
    height: 1080
    color: "#10192e"

    BasicText {
        x: 72
        y: 24
        text: "Central"
        color: "#ffffff"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 80
    }

    DigitalClock {
        x: 720
        y: 32
        width: 784
        height: 104
        color: "transparent"
        radius: 0
        format: "dddd, d MMMM"
        textColor: "#b4c2dd"
        pixelSize: 48
        localeName: "en_GB"
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignRight
    }

    DigitalClock {
        x: 1536
        y: 24
        width: 320
        height: 112
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#ffcf66"
        pixelSize: 96
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignRight
    }

    Schedule {
        id: "departures"
        x: 72
        y: 152
        width: 1128
        height: 752
        color: "#10192e"
        transType: "stagger"
        transTime: 800
        schedules: [
            { name: "Day", slides: [0, 1], begin: "04:45", end: "00:30" },
            { name: "Night", slide: 2, begin: "00:30", end: "04:45" }
        ]

        Slide {
            id: rails
            duration: 14000
            tagColor: "#2f6fde"

            Timetable {
                x: 0
                y: 0
                title: "Metro"
                departures: [
                    { line: "1", color: "#d93a43", to: "Northfields", platform: "1", every: 4, at: 1 },
                    { line: "1", color: "#d93a43", to: "Lighthouse", platform: "2", every: 4, at: 3 },
                    { line: "2", color: "#2f6fde", to: "Castle", platform: "3", every: 6, at: 2 },
                    { line: "2", color: "#2f6fde", to: "Airport", platform: "4", every: 6, at: 5 },
                    { line: "4", color: "#23835a", to: "Hill View", platform: "5", every: 8, at: 3 },
                    { line: "4", color: "#23835a", to: "Shipyard", platform: "6", every: 8, at: 7 },
                    { line: "7", color: "#f0a92c", ink: "#10192e", to: "Opera", platform: "7", every: 10, at: 4 },
                    { line: "7", color: "#f0a92c", ink: "#10192e", to: "Beach", platform: "8", every: 10, at: 9 }
                ]
            }
        }

        Slide {
            id: roads
            duration: 14000
            tagColor: "#0f7f8c"

            Timetable {
                x: 0
                y: 0
                title: "Bus and ferry"
                departures: [
                    { line: "12", color: "#7d56c2", to: "Old Brewery", platform: "A", every: 10, at: 2 },
                    { line: "18", color: "#7d56c2", to: "Hospital", platform: "A", every: 12, at: 7 },
                    { line: "21", color: "#7d56c2", to: "Botanical Garden", platform: "B", every: 15, at: 6 },
                    { line: "34", color: "#7d56c2", to: "Stadium", platform: "C", every: 10, at: 8 },
                    { line: "40", color: "#7d56c2", to: "Old Airfield", platform: "D", every: 15, at: 11 },
                    { line: "52", color: "#7d56c2", to: "Vineyards", platform: "D", every: 20, at: 13 },
                    { line: "F1", color: "#0f7f8c", to: "Lighthouse", platform: "Pier", every: 20, at: 10,
                      first: 400, last: 1310 },
                    { line: "F2", color: "#0f7f8c", to: "Seal Island", platform: "Pier", every: 60, at: 30,
                      first: 450, last: 1170 }
                ]
            }
        }

        Slide {
            id: night
            duration: 14000
            tagColor: "#5b6b8c"

            Timetable {
                x: 0
                y: 0
                title: "Night lines"
                departures: [
                    { line: "N1", color: "#d93a43", to: "Northfields", platform: "A", every: 30, at: 5 },
                    { line: "N2", color: "#2f6fde", to: "Airport", platform: "A", every: 20, at: 12 },
                    { line: "N3", color: "#2f6fde", to: "Castle", platform: "B", every: 30, at: 20 },
                    { line: "N4", color: "#23835a", to: "Hill View", platform: "B", every: 30, at: 10 },
                    { line: "N5", color: "#23835a", to: "Shipyard", platform: "C", every: 60, at: 25 },
                    { line: "N7", color: "#f0a92c", ink: "#10192e", to: "Beach", platform: "C", every: 30, at: 15 },
                    { line: "N9", color: "#7d56c2", to: "Hospital", platform: "D", every: 60, at: 40 },
                    { line: "N12", color: "#7d56c2", to: "Stadium", platform: "D", every: 60, at: 50 }
                ]
            }
        }
    }

    BasicImage {
        x: 1248
        y: 168
        width: 600
        height: 736
        source: "images/network.png"
        fillMode: Image.PreserveAspectFit
    }

    Slideshow {
        id: "notices"
        x: 0
        y: 928
        width: 1920
        height: 152
        color: "#f5f3ec"
        transType: "stagger"
        transTime: 800

        Slide {
            id: notice1
            duration: 10000
            tagColor: "#23835a"

            BasicRectangle {
                x: 88
                y: 44
                width: 88
                height: 64
                radius: 12
                color: "#23835a"
            }

            BasicText {
                x: 88
                y: 44
                width: 88
                height: 64
                text: "4"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }

            BasicText {
                x: 200
                y: 0
                width: 1648
                height: 152
                text: "Saturday and Sunday: buses run instead of line 4"
                color: "#10192e"
                wordWrap: false
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }

        Slide {
            id: notice2
            duration: 10000
            tagColor: "#0f7f8c"

            BasicRectangle {
                x: 88
                y: 44
                width: 88
                height: 64
                radius: 12
                color: "#0f7f8c"
            }

            BasicText {
                x: 88
                y: 44
                width: 88
                height: 64
                text: "F2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }

            BasicText {
                x: 200
                y: 0
                width: 1648
                height: 152
                text: "The night ferry sails again from the first of April"
                color: "#10192e"
                wordWrap: false
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }

        Slide {
            id: notice3
            duration: 10000
            tagColor: "#10192e"

            BasicRectangle {
                x: 88
                y: 44
                width: 88
                height: 64
                radius: 12
                color: "#10192e"
            }

            BasicText {
                x: 88
                y: 44
                width: 88
                height: 64
                text: "\uf0f2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "FontAwesome"
                font.bold: false
                font.pixelSize: 40
            }

            BasicText {
                x: 200
                y: 0
                width: 1648
                height: 152
                text: "Please keep your luggage with you"
                color: "#10192e"
                wordWrap: false
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }
    }
}
