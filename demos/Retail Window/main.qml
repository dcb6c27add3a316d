// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1080
    height: 1920
    color: "#3b1219"

    Slideshow {
        id: show
        x: 0
        y: 0
        width: 1080
        height: 1920
        color: "#3b1219"
        transType: "stagger"
        transTime: 1600

        Slide {
            id: scent
            duration: 11000
            tagColor: "#c98a88"

            KImage {
                x: 0
                y: 0
                width: 1080
                height: 1920
                source: "images/scent.jpg"
                fillMode: Image.PreserveAspectCrop
                kenburnsEnable: true
                kScale0: 1.0
                kScale1: 1.04
                kTime: 14000
                easingType: Easing.InOutSine
            }

            BasicText {
                x: 96
                y: 112
                text: "NEW: N° 7, EMBER"
                color: "#5e1622"
                font.letterSpacing: 5
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 88
                y: 160
                width: 912
                text: "Amber,\nslowly lit"
                color: "#3b0f18"
                lineHeight: 0.86
                font.family: "Caladea"
                font.pixelSize: 144
            }

            BasicText {
                x: 624
                y: 1704
                width: 360
                height: 120
                text: "Lind & Rose"
                color: "#3b0f18"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                wordWrap: false
                font.family: "Caladea"
                font.pixelSize: 48
            }

            LiveText {
                x: 96
                y: 1704
                width: 472
                height: 120
                text: "Ember, 50 ml: 68 €"
                color: "#fff4ec"
                backColor: "#6d1826"
                enterTime: 1600
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }

        Slide {
            id: boxes
            duration: 11000
            tagColor: "#1f4a40"

            KImage {
                x: 0
                y: 0
                width: 1080
                height: 1920
                source: "images/boxes.jpg"
                fillMode: Image.PreserveAspectCrop
                kenburnsEnable: true
                kScale0: 1.06
                kScale1: 1.0
                kTime: 14000
                easingType: Easing.InOutSine
            }

            BasicText {
                x: 96
                y: 112
                text: "GIFTS, WRAPPED"
                color: "#e8c98f"
                font.letterSpacing: 5
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 88
                y: 160
                width: 912
                text: "A parcel\nfor each"
                color: "#fbf3e4"
                lineHeight: 0.86
                font.family: "Caladea"
                font.pixelSize: 144
            }

            BasicText {
                x: 624
                y: 1704
                width: 360
                height: 120
                text: "Lind & Rose"
                color: "#fbf3e4"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                wordWrap: false
                font.family: "Caladea"
                font.pixelSize: 48
            }

            LiveText {
                x: 96
                y: 1704
                width: 600
                height: 120
                text: "Wrapped while you wait"
                color: "#ffffff"
                backColor: "#b3262f"
                enterTime: 1600
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }

        Slide {
            id: card
            duration: 10000
            tagColor: "#4a0f1a"

            BasicImage {
                x: 0
                y: 0
                width: 1080
                height: 1920
                source: "images/stage.jpg"
                fillMode: Image.PreserveAspectCrop
            }

            Particles {
                x: 0
                y: 0
                width: 1080
                height: 1920
                emitRate: 6
                lifeSpan: 16000
                size: 36
                velocity: 90
                color: "#ffd9a0"
                direction: 90
                opacity: 0.7
            }

            ChromaVideo {
                x: 60
                y: 640
                width: 960
                height: 640
                source: "videos/card.mp4"
                muted: true
            }

            BasicText {
                x: 96
                y: 112
                text: "GIFT CARDS"
                color: "#ffcf8f"
                font.letterSpacing: 5
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 88
                y: 160
                width: 912
                text: "One size\nfits all"
                color: "#fff4ec"
                lineHeight: 0.86
                font.family: "Caladea"
                font.pixelSize: 144
            }

            BasicText {
                x: 624
                y: 1704
                width: 360
                height: 120
                text: "Lind & Rose"
                color: "#fff4ec"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                wordWrap: false
                font.family: "Caladea"
                font.pixelSize: 48
            }

            LiveText {
                x: 96
                y: 1704
                width: 512
                height: 120
                text: "From 20 €, at the till"
                color: "#3b0f18"
                backColor: "#f3d9b0"
                enterTime: 1600
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 48
            }
        }
    }
}
