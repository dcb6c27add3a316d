// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: page
    width: 1920
    height: 1080
    color: "#10192e"

    BasicText {
        x: 72
        y: 40
        text: "Central"
        color: "#ffffff"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 72
    }

    BasicText {
        x: 384
        y: 68
        text: "Departures from this station"
        color: "#a9b8d6"
        font.family: "Manrope"
        font.pixelSize: 40
    }

    DigitalClock {
        x: 1672
        y: 40
        width: 224
        height: 96
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#ffcf66"
        pixelSize: 72
        fontFamily: "Manrope"
    }

    DigitalClock {
        x: 1256
        y: 48
        width: 400
        height: 80
        color: "transparent"
        radius: 0
        format: "dddd, d MMMM"
        textColor: "#a9b8d6"
        pixelSize: 32
        localeName: "en_GB"
        fontFamily: "Manrope"
    }

    Slideshow {
        id: "departures"
        x: 72
        y: 168
        width: 1056
        height: 760
        color: "#10192e"
        transType: "fade"
        transTime: 800

        Slide {
            id: rails
            duration: 14000
            tagColor: "#2f6fde"

            BasicText {
                x: 96
                y: 8
                text: "Metro"
                color: "#a9b8d6"
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 616
                y: 8
                width: 120
                text: "Platform"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignHCenter
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 760
                y: 8
                width: 128
                text: "Every"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 920
                y: 8
                width: 112
                text: "Last"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicRectangle {
                x: 0
                y: 56
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 72
                width: 64
                height: 56
                radius: 8
                color: "#d93a43"
            }

            BasicText {
                x: 16
                y: 72
                width: 64
                height: 56
                text: "1"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 64
                width: 512
                text: "Northfields"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 104
                width: 512
                text: "Mill Lane"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 56
                width: 120
                height: 88
                text: "1"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 56
                width: 144
                height: 88
                text: "4 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 56
                width: 128
                height: 88
                text: "00:42"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 160
                width: 64
                height: 56
                radius: 8
                color: "#d93a43"
            }

            BasicText {
                x: 16
                y: 160
                width: 64
                height: 56
                text: "1"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 152
                width: 512
                text: "Lighthouse"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 192
                width: 512
                text: "Old Port"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 144
                width: 120
                height: 88
                text: "2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 144
                width: 144
                height: 88
                text: "4 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 144
                width: 128
                height: 88
                text: "00:51"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 232
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 248
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
            }

            BasicText {
                x: 16
                y: 248
                width: 64
                height: 56
                text: "2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 240
                width: 512
                text: "West End"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 280
                width: 512
                text: "Market"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 232
                width: 120
                height: 88
                text: "3"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 232
                width: 144
                height: 88
                text: "6 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 232
                width: 128
                height: 88
                text: "00:36"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 336
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
            }

            BasicText {
                x: 16
                y: 336
                width: 64
                height: 56
                text: "2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 328
                width: 512
                text: "Airport"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 368
                width: 512
                text: "Museum, Park"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 320
                width: 120
                height: 88
                text: "4"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 320
                width: 144
                height: 88
                text: "6 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 320
                width: 128
                height: 88
                text: "01:12"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 408
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 424
                width: 64
                height: 56
                radius: 8
                color: "#23835a"
            }

            BasicText {
                x: 16
                y: 424
                width: 64
                height: 56
                text: "4"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 416
                width: 512
                text: "Hill View"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 456
                width: 512
                text: "change at Opera"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 408
                width: 120
                height: 88
                text: "5"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 408
                width: 144
                height: 88
                text: "8 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 408
                width: 128
                height: 88
                text: "23:58"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 512
                width: 64
                height: 56
                radius: 8
                color: "#23835a"
            }

            BasicText {
                x: 16
                y: 512
                width: 64
                height: 56
                text: "4"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 504
                width: 512
                text: "Shipyard"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 544
                width: 512
                text: "change at Market"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 496
                width: 120
                height: 88
                text: "6"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 496
                width: 144
                height: 88
                text: "8 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 496
                width: 128
                height: 88
                text: "00:04"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 584
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 600
                width: 64
                height: 56
                radius: 8
                color: "#f0a92c"
            }

            BasicText {
                x: 16
                y: 600
                width: 64
                height: 56
                text: "7"
                color: "#10192e"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 592
                width: 512
                text: "Opera"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 632
                width: 512
                text: "direct"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 584
                width: 120
                height: 88
                text: "7"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 584
                width: 144
                height: 88
                text: "10 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 584
                width: 128
                height: 88
                text: "00:20"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 688
                width: 64
                height: 56
                radius: 8
                color: "#f0a92c"
            }

            BasicText {
                x: 16
                y: 688
                width: 64
                height: 56
                text: "7"
                color: "#10192e"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 680
                width: 512
                text: "Beach"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 720
                width: 512
                text: "University"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 672
                width: 120
                height: 88
                text: "8"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 672
                width: 144
                height: 88
                text: "10 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 672
                width: 128
                height: 88
                text: "00:30"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }
        }

        Slide {
            id: roads
            duration: 14000
            tagColor: "#0f7f8c"

            BasicText {
                x: 96
                y: 8
                text: "Bus and ferry"
                color: "#a9b8d6"
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 616
                y: 8
                width: 120
                text: "Platform"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignHCenter
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 760
                y: 8
                width: 128
                text: "Every"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicText {
                x: 920
                y: 8
                width: 112
                text: "Last"
                color: "#a9b8d6"
                horizontalAlignment: Text.AlignRight
                font.family: "Manrope"
                font.pixelSize: 24
            }

            BasicRectangle {
                x: 0
                y: 56
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 72
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
            }

            BasicText {
                x: 16
                y: 72
                width: 64
                height: 56
                text: "12"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 64
                width: 512
                text: "Old Brewery"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 104
                width: 512
                text: "Town Hall"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 56
                width: 120
                height: 88
                text: "A"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 56
                width: 144
                height: 88
                text: "10 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 56
                width: 128
                height: 88
                text: "23:40"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 160
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
            }

            BasicText {
                x: 16
                y: 160
                width: 64
                height: 56
                text: "18"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 152
                width: 512
                text: "Hospital"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 192
                width: 512
                text: "Chestnut Avenue"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 144
                width: 120
                height: 88
                text: "A"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 144
                width: 144
                height: 88
                text: "12 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 144
                width: 128
                height: 88
                text: "00:10"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 232
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 248
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
            }

            BasicText {
                x: 16
                y: 248
                width: 64
                height: 56
                text: "21"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 240
                width: 512
                text: "Botanical Garden"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 280
                width: 512
                text: "Park"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 232
                width: 120
                height: 88
                text: "B"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 232
                width: 144
                height: 88
                text: "15 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 232
                width: 128
                height: 88
                text: "22:45"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 336
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
            }

            BasicText {
                x: 16
                y: 336
                width: 64
                height: 56
                text: "34"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 328
                width: 512
                text: "Stadium"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 368
                width: 512
                text: "Market"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 320
                width: 120
                height: 88
                text: "C"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 320
                width: 144
                height: 88
                text: "10 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 320
                width: 128
                height: 88
                text: "00:25"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 408
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 424
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
            }

            BasicText {
                x: 16
                y: 424
                width: 64
                height: 56
                text: "N1"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 416
                width: 512
                text: "Night bus, Northfields"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 456
                width: 512
                text: "from 00:30"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 408
                width: 120
                height: 88
                text: "C"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 408
                width: 144
                height: 88
                text: "30 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 408
                width: 128
                height: 88
                text: "04:30"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 512
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
            }

            BasicText {
                x: 16
                y: 512
                width: 64
                height: 56
                text: "N2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 504
                width: 512
                text: "Night bus, Beach"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 544
                width: 512
                text: "from 00:30"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 496
                width: 120
                height: 88
                text: "D"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 496
                width: 144
                height: 88
                text: "30 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 496
                width: 128
                height: 88
                text: "04:30"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 0
                y: 584
                width: 1056
                height: 88
                radius: 8
                color: "#19264a"
            }

            BasicRectangle {
                x: 16
                y: 600
                width: 64
                height: 56
                radius: 8
                color: "#0f7f8c"
            }

            BasicText {
                x: 16
                y: 600
                width: 64
                height: 56
                text: "F1"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 592
                width: 512
                text: "Ferry, Lighthouse"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 632
                width: 512
                text: "Old Port"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 584
                width: 120
                height: 88
                text: "Pier"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 584
                width: 144
                height: 88
                text: "20 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 584
                width: 128
                height: 88
                text: "21:50"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicRectangle {
                x: 16
                y: 688
                width: 64
                height: 56
                radius: 8
                color: "#0f7f8c"
            }

            BasicText {
                x: 16
                y: 688
                width: 64
                height: 56
                text: "F2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 680
                width: 512
                text: "Ferry, Seal Island"
                color: "#ffffff"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 720
                width: 512
                text: "direct"
                color: "#a9b8d6"
                elide: Text.ElideRight
                wordWrap: false
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 672
                width: 120
                height: 88
                text: "Pier"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 672
                width: 144
                height: 88
                text: "60 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 672
                width: 128
                height: 88
                text: "19:00"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: "Manrope"
                font.pixelSize: 32
            }
        }
    }

    BasicImage {
        x: 1176
        y: 168
        width: 672
        height: 616
        source: "images/network.png"
        fillMode: Image.PreserveAspectCrop
    }

    BasicRectangle {
        x: 1176
        y: 808
        width: 328
        height: 120
        radius: 8
        color: "#19264a"
    }

    BasicRectangle {
        x: 1200
        y: 832
        width: 16
        height: 72
        radius: 4
        color: "#23835a"
    }

    BasicText {
        x: 1240
        y: 828
        text: "Lifts"
        color: "#ffffff"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 32
    }

    BasicText {
        x: 1240
        y: 872
        text: "All in service"
        color: "#a9b8d6"
        font.family: "Manrope"
        font.pixelSize: 24
    }

    BasicRectangle {
        x: 1520
        y: 808
        width: 328
        height: 120
        radius: 8
        color: "#19264a"
    }

    BasicRectangle {
        x: 1544
        y: 832
        width: 16
        height: 72
        radius: 4
        color: "#2f6fde"
    }

    BasicText {
        x: 1584
        y: 828
        text: "Tickets"
        color: "#ffffff"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 32
    }

    BasicText {
        x: 1584
        y: 872
        text: "Machines at exit B"
        color: "#a9b8d6"
        font.family: "Manrope"
        font.pixelSize: 24
    }

    Slideshow {
        id: "notices"
        x: 0
        y: 952
        width: 1920
        height: 128
        color: "#19264a"
        transType: "fade"
        transTime: 600

        Slide {
            id: notice1
            duration: 10000
            tagColor: "#f0a92c"

            BasicRectangle {
                x: 0
                y: 0
                width: 1920
                height: 128
                radius: 0
                color: "#f0a92c"
            }

            LiveText {
                x: 46
                y: 0
                width: 1828
                height: 128
                text: "Saturday and Sunday: buses replace line 4 between Market and Shipyard"
                color: "#10192e"
                backColor: "transparent"
                enterTime: 200
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }
        }

        Slide {
            id: notice2
            duration: 10000
            tagColor: "#0f7f8c"

            BasicRectangle {
                x: 0
                y: 0
                width: 1920
                height: 128
                radius: 0
                color: "#0f7f8c"
            }

            LiveText {
                x: 46
                y: 0
                width: 1828
                height: 128
                text: "The night ferry sails again from the first of April"
                color: "#ffffff"
                backColor: "transparent"
                enterTime: 200
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }
        }

        Slide {
            id: notice3
            duration: 10000
            tagColor: "#19264a"

            BasicRectangle {
                x: 0
                y: 0
                width: 1920
                height: 128
                radius: 0
                color: "#19264a"
            }

            LiveText {
                x: 46
                y: 0
                width: 1828
                height: 128
                text: "Please keep your luggage with you"
                color: "#ffffff"
                backColor: "transparent"
                enterTime: 200
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 40
            }
        }
    }
}
