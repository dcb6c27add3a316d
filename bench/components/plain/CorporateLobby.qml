// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    property int page: 0
    readonly property date today: new Date()
    readonly property date monday: new Date(today.getFullYear(), today.getMonth(), 1 - (new Date(today.getFullYear(), today.getMonth(), 1).getDay() + 6) % 7)
    readonly property var news: [
        ["The roof garden is open again", "Forty beds, two beehives and a bench for everyone who needs ten minutes of sky."],
        ["All our power now comes from the sea", "The contract with the Borkum wind farm took effect this week, for every floor of both towers."],
        ["Two hundred new colleagues in Gdańsk", "The third office of the year brings the northern team to more than a thousand people."],
        ["Open lecture: Bridges that measure themselves", "Thursday at six in the auditorium. Guests are welcome, admission is free."],
        ["The canteen wins a prize for its bread", "Sourdough from the ground floor, baked at four in the morning. There is some left at noon."],
        ["Bicycle repairs in the yard", "Every first Monday of the month, from eight to twelve."]
    ]

    width: 1920
    height: 1080
    color: "#f1eee8"

    component Page: Text { font.family: "Open Sans"; color: "#14233a"; width: 450; wrapMode: Text.Wrap }
    component Dark: Rectangle { color: "#14233a" }

    Zoom { width: 720; height: 1080; to: 1.06; duration: 30000; source: "../../../demos/Corporate Lobby/images/towers.jpg" }
    Dark { y: 792; width: 720; height: 288 }
    Label { x: 64; y: 840; text: "NORDLICHT"; color: "#f3b765"; font { bold: true; pixelSize: 24; letterSpacing: 5 } }
    Headline { x: 60; y: 872; text: "Welcome"; color: "white"; font.pixelSize: 112; lineHeight: 1 }
    Label { x: 64; y: 1000; text: "Please sign in at the desk"; color: "#c3cddb" }

    Clock { x: 768; y: 56; width: 256; height: 144; color: "#14233a"; fontSizeMode: Text.Fit; font.pixelSize: 128 }
    Clock { x: 1088; y: 72; width: 336; height: 64; color: "#14233a"; format: "dddd"; font.pixelSize: 40 }
    Clock { x: 1088; y: 120; width: 336; height: 64; color: "#56606f"; format: "d MMMM yyyy"; font.pixelSize: 32 }

    Dark {
        x: 1488; y: 48; width: 368; height: 160; radius: 8

        Image { x: 56; y: 24; width: 115; height: 115; mipmap: true; source: "../../../qml/Components/icons/weatherFair.svg"; sourceSize: Qt.size(128, 128) }
        Page { x: 188; y: 20; text: "14°"; color: "white"; font.pixelSize: 58 }
        Page { x: 188; y: 90; text: "Partly cloudy"; color: "white"; font.pixelSize: 21 }
        Page { x: 188; y: 118; text: "Hamburg"; color: "white"; opacity: 0.7; font.pixelSize: 18 }
    }

    Rectangle {
        x: 784; y: 256; width: 512; height: 464; radius: 12; color: "white"

        Label { x: 40; y: 24; text: Qt.formatDate(root.today, "MMMM yyyy"); color: "#14233a"; font { bold: true; pixelSize: 34 } }

        Repeater {
            model: 49

            Label {
                readonly property date day: new Date(root.monday.getTime() + (index - 7) * 86400000 + 43200000)
                readonly property bool isToday: index > 6 && day.toDateString() === root.today.toDateString()

                x: 24 + index % 7 * 66
                y: 80 + Math.floor(index / 7) * 52
                width: 66
                height: 52
                text: index < 7 ? Qt.formatDate(day, "ddd") : day.getDate()
                color: index < 7 ? "#8a4a12" : isToday ? "white" : "#14233a"
                opacity: index < 7 || day.getMonth() === root.today.getMonth() ? 1 : 0.35
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font { pixelSize: index < 7 ? 20 : 24; bold: index < 7 }

                Rectangle { anchors.centerIn: parent; z: -1; width: 50; height: 50; radius: 25; color: "#b4601a"; visible: parent.isToday }
            }
        }
    }

    Headline { x: 784; y: 736; text: "Expected today"; color: "#14233a"; font.pixelSize: 40; lineHeight: 1 }
    Repeater {
        model: [["09:30", "Maria Keller, Aurel Systems", "Fjord, 4th floor"], ["11:00", "Jonas Lindqvist, Norrpulp", "Skerry, 2nd floor"],
                ["14:15", "Delegation from Gdańsk", "Auditorium"]]

        Item {
            x: 784
            y: 800 + 80 * index

            Rectangle { width: 512; height: 2; color: "#cfc9bd" }
            Label { y: 14; text: modelData[0]; color: "#8a4a12"; font.bold: true }
            Label { x: 120; y: 10; text: modelData[1]; color: "#14233a"; font.bold: true }
            Label { x: 120; y: 46; text: modelData[2]; color: "#56606f"; font.pixelSize: 22 }
        }
    }

    Rectangle {
        x: 1344; y: 256; width: 512; height: 760; radius: 8; color: "white"

        Rectangle { x: 22; y: 18; width: 7; height: 31; radius: 3; color: "#b4601a" }
        Page { x: 42; y: 14; text: "News from the house"; font { pixelSize: 28; weight: Font.DemiBold } }

        Column {
            id: rows
            x: 22; y: 80; spacing: 32

            Repeater {
                model: root.page ? root.news.slice(2) : root.news.slice(0, 4)

                Column {
                    Page { text: modelData[0]; font { pixelSize: 28; weight: Font.DemiBold } }
                    Page { text: modelData[1]; opacity: 0.85; font.pixelSize: 20 }
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
