// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    readonly property string media: "../../../demos/Shop Promotion/"

    width: 1920
    height: 1080
    color: "#f4ede3"

    component Photo: Image {
        width: 1920
        height: 976
        fillMode: Image.PreserveAspectCrop
        asynchronous: true
        mipmap: true
    }
    component Kicker: Label { font { bold: true; pixelSize: 28; letterSpacing: 4 } }
    component Story: Label { font.pixelSize: 32; lineHeight: 1.25; color: "#2a2d34"; wrapMode: Text.WordWrap }

    Show {
        width: 1920
        height: 976
        fadeTime: 1200
        durations: [9000, 9000, 10000, 8000, 9000]

        Photo {
            source: root.media + "images/morning.jpg"

            Kicker { x: 120; y: 144; text: "NEW IN STONEWARE"; color: "#8a3a1e" }
            Headline { x: 112; y: 184; text: "Slow\nmornings"; color: "#2a2d34" }
            Story { x: 120; y: 520; width: 560; text: "Cups, plates and bowls in four glazes, made to be used every day." }
            Plate {
                x: 120; y: 680; width: 328; height: 88
                text: "Cups from 18 €"; color: "white"; ground: "#a5472a"; pixelSize: 40; enterTime: 1200
            }
        }

        Photo {
            source: root.media + "images/vases.jpg"

            Kicker { x: 1120; y: 104; text: "THE ALBA VASES"; color: "#5a2311" }
            Headline { x: 1112; y: 144; text: "Shapes that\nhold a room"; color: "#3a1a10"; font.pixelSize: 112 }
            Rectangle { x: 1120; y: 408; width: 560; height: 2; color: "#5a2311" }

            Repeater {
                model: [["Globe", "72 €"], ["Flask", "58 €"], ["Ring", "64 €"]]

                Item {
                    x: 1120
                    y: 432 + 72 * index
                    width: 560

                    Label { text: modelData[0]; color: "#3a1a10"; font.pixelSize: 40 }
                    Label { anchors.right: parent.right; text: modelData[1]; color: "#3a1a10"; font.bold: true; font.pixelSize: 40 }
                }
            }
        }

        Item {
            anchors.fill: parent

            Clip { width: 960; height: 976; volume: 0.4; source: root.media + "videos/wheel.mp4" }
            Kicker { x: 1080; y: 144; text: "FROM OUR WORKSHOP"; color: "#8a3a1e" }
            Headline { x: 1072; y: 184; text: "Two kilos\nof clay, ten\nminutes"; color: "#2a2d34"; font.pixelSize: 112 }
            Story {
                x: 1080; y: 568; width: 640
                text: "See how a pot comes to be. The wheel turns downstairs, and you may try it yourself."
            }
            Plate {
                x: 1080; y: 776; width: 448; height: 88
                text: "Thursdays, 16 to 19 h"; color: "white"; ground: "#4f5d49"; pixelSize: 40
            }
        }

        Photo {
            source: root.media + "images/lamp.jpg"

            Kicker { x: 120; y: 144; text: "LONGER EVENINGS"; color: "#ffcf8f" }
            Headline { x: 104; y: 176; text: "−20 %"; color: "#fff3df"; font.pixelSize: 256; lineHeight: 1 }
            Story { x: 120; y: 496; text: "on every table lamp,\nuntil Saturday evening"; color: "#fff3df"; font.pixelSize: 48 }
        }

        Photo {
            source: root.media + "images/table.jpg"

            Kicker { x: 120; y: 144; text: "AT YOUR SERVICE"; color: "#e8c98f" }
            Headline { x: 112; y: 184; text: "A table\nfor two, or\ntwenty"; color: "#f4ede3"; font.pixelSize: 112 }
            Story {
                x: 120; y: 568
                text: "Wedding lists\nReplacement pieces\nGift wrapping\nDelivery by cargo bike"
                color: "#f4ede3"; font.pixelSize: 36; lineHeight: 1.35
            }
        }
    }

    Rectangle { y: 976; width: 1920; height: 104; color: "#2a2d34" }
    Label { x: 120; y: 996; text: "HALDEN"; color: "#f4ede3"; font { family: "Bebas Neue"; bold: true; pixelSize: 56; letterSpacing: 8 } }
    Label { anchors.horizontalCenter: parent.horizontalCenter; y: 1008; text: "Haldengasse 12   ·   Monday to Saturday, 10 to 19 h"; color: "#d9cfc2" }
    Clock { x: 1592; y: 984; width: 208; height: 88; color: "#f4ede3"; horizontalAlignment: Text.AlignRight; font.pixelSize: 56 }
}
