// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    property int page: 0
    property date today: new Date()
    readonly property date monday: new Date(today.getFullYear(), today.getMonth(), 1 - (new Date(today.getFullYear(), today.getMonth(), 1).getDay() + 6) % 7)
    readonly property string time: Qt.formatTime(today, "hh:mm")
    readonly property var news: [
        ["The roof garden is open again", "Forty beds, two beehives and a bench for everyone who needs ten minutes of sky."],
        ["Our power comes from the sea", "The contract with the Borkum wind farm took effect this week, for every floor of both towers."],
        ["Two hundred more in Gdańsk", "The third office of the year brings the northern team to more than a thousand people."],
        ["Bridges that measure", "Open lecture, Thursday at six in the auditorium. Guests are welcome, admission is free."],
        ["A prize for the canteen's bread", "Sourdough from the ground floor, baked at four in the morning. There is some left at noon."],
        ["Bicycle repairs in the yard", "Every first Monday of the month, from eight to twelve in the yard behind the north tower."]
    ]
    readonly property var guests: [
        ["08:30", "Ines Albers, Nordsicht", "Fjord, 4th floor"], ["09:30", "Maria Keller, Aurel", "Fjord, 4th floor"],
        ["11:00", "Jonas Lindqvist, Norrpulp", "Skerry, 2nd floor"], ["12:30", "Class 9b, Altona", "Canteen"],
        ["14:15", "Delegation from Gdańsk", "Auditorium"], ["15:45", "Tomasz Wrona, Baltpak", "Skerry, 2nd floor"],
        ["17:00", "Dr. Ayla Demir, TU", "Archive, ground floor"], ["18:00", "Guests of the lecture", "Auditorium"],
        ["20:30", "Night tour, four guests", "Roof garden"], ["22:00", "Hanna Voss, security", "Desk"]
    ].filter(guest => guest[0] >= root.time)

    width: 1920
    height: 1080
    color: "#f1eee8"

    component Dark: Rectangle { color: "#14233a" }
    component Card: Rectangle { width: 576; radius: 12; color: "white" }

    Timer { interval: 1000; running: true; repeat: true; onTriggered: root.today = new Date() }

    Zoom { width: 608; height: 1080; to: 1.06; duration: 30000; source: "../../../demos/Corporate Lobby/images/towers.jpg" }
    Dark { y: 784; width: 608; height: 296 }
    Label { x: 64; y: 836; text: "NORDLICHT"; color: "#f3b765"; font { bold: true; pixelSize: 26; letterSpacing: 5 } }
    Label { x: 60; y: 866; text: "Welcome"; color: "white"; font { bold: true; pixelSize: 104 } }
    Label { x: 64; y: 996; text: "Please sign in at the desk"; color: "#c3cddb"; font.pixelSize: 32 }

    Clock { x: 672; y: 36; width: 576; height: 160; color: "#14233a"; horizontalAlignment: Text.AlignLeft; font.pixelSize: 144 }
    Clock { x: 672; y: 186; width: 576; height: 72; color: "#56606f"; horizontalAlignment: Text.AlignLeft; format: "dddd, d MMMM"; font.pixelSize: 40 }

    Dark {
        x: 1280; y: 64; width: 576; height: 184; radius: 12

        Image { x: 144; y: 26; width: 132; height: 132; mipmap: true; source: "../../../qml/Components/icons/weatherFair.svg"; sourceSize: Qt.size(132, 132) }
        Label { x: 292; y: 18; text: "14°"; color: "white"; font.pixelSize: 66 }
        Label { x: 292; y: 106; text: "Partly cloudy"; color: "white"; font.pixelSize: 24 }
        Label { x: 292; y: 140; text: "Hamburg"; color: "white"; opacity: 0.7; font.pixelSize: 20 }
    }

    Card {
        x: 672; y: 280; height: 360

        Label { x: 38; y: 22; text: Qt.formatDate(root.today, "MMMM yyyy"); color: "#14233a"; font { bold: true; pixelSize: 34 } }

        Repeater {
            model: 49

            Label {
                readonly property date day: new Date(root.monday.getTime() + (index - 7) * 86400000 + 43200000)
                readonly property bool isToday: index > 6 && day.toDateString() === root.today.toDateString()

                x: 24 + index % 7 * 76
                y: 78 + Math.floor(index / 7) * 37
                width: 76
                height: 37
                text: index < 7 ? Qt.formatDate(day, "ddd") : day.getDate()
                color: index < 7 ? "#8a4a12" : isToday ? "white" : "#14233a"
                opacity: index < 7 || day.getMonth() === root.today.getMonth() ? 1 : 0.35
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font { pixelSize: index < 7 ? 19 : 23; bold: index < 7 }

                Rectangle { anchors.centerIn: parent; z: -1; width: 36; height: 36; radius: 18; color: "#b4601a"; visible: parent.isToday }
            }
        }
    }

    Card {
        x: 672; y: 672; height: 344

        Label { x: 36; y: 20; text: "Expected today"; color: "#14233a"; font { bold: true; pixelSize: 34 } }
        Repeater {
            model: root.guests.slice(0, 3)

            Rectangle {
                readonly property bool isNext: index === 0

                x: 20; y: 80 + 80 * index
                width: 536; height: 80; radius: 8
                color: isNext ? "#14233a" : "transparent"

                Label { x: 16; y: 5; text: modelData[0]; color: isNext ? "#f3b765" : "#8a4a12"; font { bold: true; pixelSize: 30 } }
                Label { x: 128; y: 5; text: modelData[1]; color: isNext ? "white" : "#14233a"; font { bold: true; pixelSize: 30 } }
                Label { x: 128; y: 43; text: modelData[2]; color: isNext ? "#c3cddb" : "#56606f"; font.pixelSize: 22 }
            }
        }
    }

    Card {
        x: 1280; y: 280; height: 736

        Rectangle { x: 38; y: 31; width: 7; height: 35; radius: 3; color: "#b4601a" }
        Label { x: 60; y: 28; text: "News from the house"; color: "#14233a"; font { pixelSize: 32; weight: Font.DemiBold } }

        Item {
            id: rows
            x: 38; y: 128

            Repeater {
                model: root.news.slice(3 * root.page, 3 * root.page + 3)

                Column {
                    y: 210 * index

                    Label { text: modelData[0]; color: "#14233a"; font { pixelSize: 32; weight: Font.DemiBold } }
                    Label { width: 504; wrapMode: Text.Wrap; text: modelData[1]; color: "#14233a"; opacity: 0.85; font.pixelSize: 23 }
                }
            }
        }
        SequentialAnimation {
            running: true
            loops: Animation.Infinite

            PauseAnimation { duration: 12000 }
            NumberAnimation { target: rows; property: "opacity"; to: 0; duration: 300 }
            ScriptAction { script: root.page = 1 - root.page }
            NumberAnimation { target: rows; property: "opacity"; to: 1; duration: 500 }
        }
    }
}
