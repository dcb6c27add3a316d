// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1920
    height: 1080
    color: "#f4ede3"

    Slideshow {
        id: show
        x: 0
        y: 0
        width: 1920
        height: 976
        color: "#f4ede3"
        transType: "stagger"
        transTime: 1200

        Slide {
            id: morning
            duration: 9000
            tagColor: "#b1532f"

            BasicImage {
                x: 0
                y: 0
                width: 1920
                height: 976
                source: "images/morning.jpg"
                fillMode: Image.PreserveAspectCrop
            }

            BasicText {
                x: 120
                y: 144
                text: "NEW IN STONEWARE"
                color: "#8a3a1e"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
                font.letterSpacing: 4
            }

            BasicText {
                x: 112
                y: 184
                width: 800
                text: "Slow\nmornings"
                color: "#2a2d34"
                font.family: "Caladea"
                font.pixelSize: 144
                lineHeight: 0.86
            }

            BasicText {
                x: 120
                y: 520
                width: 560
                text: "Cups, plates and bowls in four glazes, made to be used every day."
                color: "#2a2d34"
                font.family: "Manrope"
                font.pixelSize: 32
                lineHeight: 1.25
            }

            LiveText {
                x: 120
                y: 680
                width: 328
                height: 88
                text: "Cups from 18 €"
                color: "#ffffff"
                backColor: "#a5472a"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
                enterTime: 1200
            }
        }

        Slide {
            id: vases
            duration: 9000
            tagColor: "#4f5d49"

            BasicImage {
                x: 0
                y: 0
                width: 1920
                height: 976
                source: "images/vases.jpg"
                fillMode: Image.PreserveAspectCrop
            }

            BasicText {
                x: 1120
                y: 104
                text: "THE ALBA VASES"
                color: "#5a2311"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
                font.letterSpacing: 4
            }

            BasicText {
                x: 1112
                y: 144
                width: 720
                text: "Shapes that\nhold a room"
                color: "#3a1a10"
                font.family: "Caladea"
                font.pixelSize: 112
                lineHeight: 0.86
            }

            BasicRectangle {
                x: 1120
                y: 408
                width: 560
                height: 2
                radius: 0
                color: "#5a2311"
            }

            BasicText {
                x: 1120
                y: 432
                text: "Globe"
                color: "#3a1a10"
                font.family: "Manrope"
                font.pixelSize: 40
            }

            BasicText {
                x: 1480
                y: 432
                width: 200
                text: "72 €"
                color: "#3a1a10"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }

            BasicText {
                x: 1120
                y: 504
                text: "Flask"
                color: "#3a1a10"
                font.family: "Manrope"
                font.pixelSize: 40
            }

            BasicText {
                x: 1480
                y: 504
                width: 200
                text: "58 €"
                color: "#3a1a10"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }

            BasicText {
                x: 1120
                y: 576
                text: "Ring"
                color: "#3a1a10"
                font.family: "Manrope"
                font.pixelSize: 40
            }

            BasicText {
                x: 1480
                y: 576
                width: 200
                text: "64 €"
                color: "#3a1a10"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }
        }

        Slide {
            id: workshop
            duration: 10000
            tagColor: "#c08a62"

            BasicRectangle {
                x: 0
                y: 0
                width: 1920
                height: 976
                radius: 0
                color: "#f4ede3"
            }

            BasicVideo {
                x: 0
                y: 0
                width: 960
                height: 976
                source: "videos/wheel.mp4"
                fillMode: VideoOutput.PreserveAspectCrop
                volume: 0.4
            }

            BasicText {
                x: 1080
                y: 144
                text: "FROM OUR WORKSHOP"
                color: "#8a3a1e"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
                font.letterSpacing: 4
            }

            BasicText {
                x: 1072
                y: 184
                width: 760
                text: "Two kilos\nof clay, ten\nminutes"
                color: "#2a2d34"
                font.family: "Caladea"
                font.pixelSize: 112
                lineHeight: 0.86
            }

            BasicText {
                x: 1080
                y: 568
                width: 640
                text: "See how a pot comes to be. The wheel turns downstairs, and you may try it yourself."
                color: "#2a2d34"
                font.family: "Manrope"
                font.pixelSize: 32
                lineHeight: 1.25
            }

            LiveText {
                x: 1080
                y: 776
                width: 448
                height: 88
                text: "Thursdays, 16 to 19 h"
                color: "#ffffff"
                backColor: "#4f5d49"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
                enterTime: 1600
            }
        }

        Slide {
            id: lamps
            duration: 8000
            tagColor: "#1d3048"

            BasicImage {
                x: 0
                y: 0
                width: 1920
                height: 976
                source: "images/lamp.jpg"
                fillMode: Image.PreserveAspectCrop
            }

            BasicText {
                x: 120
                y: 144
                text: "LONGER EVENINGS"
                color: "#ffcf8f"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
                font.letterSpacing: 4
            }

            BasicText {
                x: 104
                y: 176
                text: "−20 %"
                color: "#fff3df"
                font.family: "Caladea"
                font.pixelSize: 256
            }

            BasicText {
                x: 120
                y: 496
                width: 640
                text: "on every table lamp,\nuntil Saturday evening"
                color: "#fff3df"
                font.family: "Manrope"
                font.pixelSize: 48
                lineHeight: 1.2
            }
        }

        Slide {
            id: table
            duration: 9000
            tagColor: "#2c4036"

            BasicImage {
                x: 0
                y: 0
                width: 1920
                height: 976
                source: "images/table.jpg"
                fillMode: Image.PreserveAspectCrop
            }

            BasicText {
                x: 120
                y: 144
                text: "AT YOUR SERVICE"
                color: "#e8c98f"
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
                font.letterSpacing: 4
            }

            BasicText {
                x: 112
                y: 184
                width: 680
                text: "A table\nfor two, or\ntwenty"
                color: "#f4ede3"
                font.family: "Caladea"
                font.pixelSize: 112
                lineHeight: 0.86
            }

            BasicText {
                x: 120
                y: 568
                width: 560
                text: "Wedding lists\nReplacement pieces\nGift wrapping\nDelivery by cargo bike"
                color: "#f4ede3"
                font.family: "Manrope"
                font.pixelSize: 36
                lineHeight: 1.35
            }
        }
    }

    BasicRectangle {
        x: 0
        y: 976
        width: 1920
        height: 104
        radius: 0
        color: "#2a2d34"
    }

    BasicText {
        x: 120
        y: 980
        height: 104
        text: "HALDEN"
        color: "#f4ede3"
        verticalAlignment: Text.AlignVCenter
        font.family: "Bebas Neue"
        font.bold: true
        font.pixelSize: 56
        font.letterSpacing: 8
    }

    BasicText {
        x: 560
        y: 976
        width: 800
        height: 104
        text: "Haldengasse 12   ·   Monday to Saturday, 10 to 19 h"
        color: "#d9cfc2"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: "Manrope"
        font.pixelSize: 28
    }

    DigitalClock {
        x: 1592
        y: 984
        width: 216
        height: 88
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#f4ede3"
        pixelSize: 56
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignRight
    }
}
