// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    readonly property int hour: new Date().getHours() * 60 + new Date().getMinutes()
    readonly property bool isNight: hour >= 30 && hour < 285
    readonly property var timetables: isNight ? [night] : [rails, roads]
    readonly property var rails: ({
        title: "Metro", colors: ["#d93a43", "#d93a43", "#2f6fde", "#2f6fde", "#23835a", "#23835a", "#b06f00", "#b06f00"],
        columns: ["1\n1\n2\n2\n4\n4\n7\n7", "Northfields\nLighthouse\nWest End\nAirport\nHill View\nShipyard\nOpera\nBeach",
            "Mill Lane\nOld Port\nMarket\nMuseum, Park\nchange at Opera\nchange at Market\ndirect\nUniversity",
            "1\n2\n3\n4\n5\n6\n7\n8", "4 min\n4 min\n6 min\n6 min\n8 min\n8 min\n10 min\n10 min",
            "00:42\n00:51\n00:36\n01:12\n23:58\n00:04\n00:20\n00:30"] })
    readonly property var roads: ({
        title: "Bus and ferry", colors: ["#7d56c2", "#7d56c2", "#7d56c2", "#7d56c2", "#7d56c2", "#7d56c2", "#0f7f8c", "#0f7f8c"],
        columns: ["12\n18\n21\n34\n40\n52\nF1\nF2",
            "Old Brewery\nHospital\nBotanical Garden\nStadium\nOld Airfield\nVineyards\nFerry, Lighthouse\nFerry, Seal Island",
            "Town Hall\nChestnut Avenue\nPark\nMarket\nRing road\nHill View\nOld Port\ndirect", "A\nA\nB\nC\nD\nD\nPier\nPier",
            "10 min\n12 min\n15 min\n10 min\n15 min\n20 min\n20 min\n60 min",
            "23:40\n00:10\n22:45\n00:25\n23:15\n22:30\n21:50\n19:00"] })
    readonly property var night: ({
        title: "Night lines", colors: ["#d93a43", "#2f6fde", "#2f6fde", "#23835a", "#23835a", "#b06f00", "#7d56c2", "#7d56c2"],
        columns: ["N1\nN2\nN3\nN4\nN5\nN7\nN9\nN12", "Northfields\nAirport\nWest End\nHill View\nShipyard\nBeach\nHospital\nStadium",
            "Mill Lane\nMuseum, Park\nMarket\nOpera\nMarket\nUniversity\nChestnut Avenue\nOld Brewery", "A\nA\nB\nB\nC\nC\nD\nD",
            "30 min\n20 min\n30 min\n30 min\n60 min\n30 min\n60 min\n60 min",
            "04:30\n04:40\n04:30\n04:15\n04:00\n04:30\n04:10\n04:20"] })
    readonly property var notices: [
        ["Saturday and Sunday: buses replace line 4 between Market and Shipyard", "#10192e", "#f0a92c"],
        ["The night ferry sails again from the first of April", "#ffffff", "#0f7f8c"],
        ["Please keep your luggage with you", "#ffffff", "#19264a"]
    ]

    width: 1920
    height: 1080
    color: "#10192e"

    component Column: Label {
        color: "white"
        lineHeightMode: Text.FixedHeight
        lineHeight: 88
        font.pixelSize: 32
    }
    component Title: Label { y: 8; color: "#a9b8d6"; font.pixelSize: 24 }
    component Box: Rectangle {
        property alias title: heading.text
        property alias text: line.text
        property alias mark: bar.color

        width: 328; height: 120; radius: 8; color: "#19264a"

        Rectangle { id: bar; x: 24; y: 24; width: 16; height: 72; radius: 4 }
        Label { id: heading; x: 64; y: 20; color: "white"; font { bold: true; pixelSize: 32 } }
        Label { id: line; x: 64; y: 64; color: "#a9b8d6"; font.pixelSize: 24 }
    }

    Label { x: 72; y: 40; text: "Central"; color: "white"; font { bold: true; pixelSize: 72 } }
    Label { x: 384; y: 68; text: "Departures from this station"; color: "#a9b8d6"; font.pixelSize: 40 }
    Clock { x: 1672; y: 40; width: 224; height: 96; color: "#ffcf66"; font.pixelSize: 72 }
    Clock { x: 1256; y: 48; width: 400; height: 80; color: "#a9b8d6"; font.pixelSize: 32; format: "dddd, d MMMM" }

    Show {
        x: 72; y: 168; width: 1056; height: 760
        durations: root.isNight ? [86400000] : [14000, 14000]
        fadeTime: 800

        Repeater {
            model: root.timetables

            Item {
                Title { x: 96; text: modelData.title }
                Title { x: 616; text: "Platform" }
                Title { x: 816; text: "Every" }
                Title { x: 984; text: "Last" }

                Repeater {
                    model: modelData.colors

                    Rectangle {
                        y: 56 + 88 * index
                        width: 1056; height: 88; radius: 8
                        color: index % 2 ? "transparent" : "#19264a"

                        Rectangle { x: 16; y: 16; width: 64; height: 56; radius: 8; color: modelData }
                    }
                }
                Column { x: 16; y: 80; width: 64; text: modelData.columns[0]; horizontalAlignment: Text.AlignHCenter; font { bold: true; pixelSize: 28 } }
                Column { x: 96; y: 64; text: modelData.columns[1]; font.bold: true }
                Column { x: 96; y: 104; text: modelData.columns[2]; color: "#a9b8d6"; font.pixelSize: 22 }
                Column { x: 616; y: 78; width: 120; text: modelData.columns[3]; horizontalAlignment: Text.AlignHCenter }
                Column { x: 744; y: 78; width: 144; text: modelData.columns[4]; color: "#ffcf66"; horizontalAlignment: Text.AlignRight; font.bold: true }
                Column { x: 904; y: 78; width: 128; text: modelData.columns[5]; horizontalAlignment: Text.AlignRight }
            }
        }
    }

    Image { x: 1176; y: 168; width: 672; height: 616; source: "../../../demos/Transport Board/images/network.png"; fillMode: Image.PreserveAspectCrop; mipmap: true }
    Box { x: 1176; y: 808; title: "Lifts"; text: "All in service"; mark: "#23835a" }
    Box { x: 1520; y: 808; title: "Tickets"; text: "Machines at exit B"; mark: "#2f6fde" }

    Show {
        y: 952; width: 1920; height: 128
        durations: [10000, 10000, 10000]
        fadeTime: 600

        Repeater {
            model: root.notices

            Rectangle {
                width: 1920; height: 128
                color: modelData[2]

                Plate { x: 46; width: 1828; height: 128; text: modelData[0]; color: modelData[1]; pixelSize: 40; enterTime: 200 }
            }
        }
    }
}
