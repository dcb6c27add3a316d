// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    readonly property string media: "../../../demos/Lobby Board/images/"

    width: 1080
    height: 1920
    color: "#f3eee3"

    Show {
        width: 1080
        height: 864
        durations: [12000, 12000, 12000]

        Repeater {
            model: ["court.jpg", "corner.jpg", "stairs.jpg"]

            Image {
                width: 1080
                height: 864
                source: root.media + modelData
                fillMode: Image.PreserveAspectCrop
                asynchronous: true
                mipmap: true
            }
        }
    }

    Rectangle { y: 776; width: 688; height: 232; color: "#12302b" }
    Label { x: 72; y: 824; text: "HARBOUR HOUSE"; color: "#d8b877"; font { bold: true; pixelSize: 24; letterSpacing: 4 } }
    Headline { x: 68; y: 860; text: "Good to see you"; color: "#f3eee3"; font.pixelSize: 80; lineHeight: 1 }
    Clock { x: 704; y: 858; width: 304; height: 104; color: "#12302b"; horizontalAlignment: Text.AlignRight; font.pixelSize: 88 }
    Clock { x: 704; y: 952; width: 304; height: 56; color: "#4a5a52"; horizontalAlignment: Text.AlignRight; format: "ddd, d MMMM"; font.pixelSize: 32 }
    Headline { x: 72; y: 1048; text: "Today in the house"; color: "#12302b"; font.pixelSize: 56; lineHeight: 1 }

    Repeater {
        model: [
            ["09:00", "Design review, autumn range", "Studio Møller   ·   Gallery, 2nd floor"],
            ["10:30", "Introduction for new tenants", "House team   ·   Winter garden"],
            ["12:00", "Shared lunch", "Everybody is welcome   ·   Roof terrace"],
            ["14:00", "Workshop: Clear signs", "Lindqvist & Partner   ·   Room 4"],
            ["18:30", "Harbour talk: Building with clay", "Dr. Amélie Roux   ·   Great hall"]
        ]

        Item {
            x: 72
            y: 1136 + 128 * index

            Rectangle { width: 936; height: 2; color: "#c9bfa9" }
            Label { y: 16; text: modelData[0]; color: "#8a4a22"; font { bold: true; pixelSize: 40 } }
            Label { x: 176; y: 16; text: modelData[1]; color: "#12302b"; font { bold: true; pixelSize: 40 } }
            Label { x: 176; y: 70; text: modelData[2]; color: "#4a5a52"; font.pixelSize: 30 }
        }
    }

    Rectangle { y: 1816; width: 1080; height: 104; color: "#12302b" }
    Label {
        x: 72; y: 1816; height: 104
        text: "Guest network: Harbour   ·   Reception is open until 20 h"
        color: "#e6dcc6"
        verticalAlignment: Text.AlignVCenter
    }
}
