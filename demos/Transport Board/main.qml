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

    Schedule {
        id: "departures"
        x: 72
        y: 168
        width: 1056
        height: 760
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

            BasicRectangle {
                x: 16
                y: 160
                width: 64
                height: 56
                radius: 8
                color: "#d93a43"
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

            BasicRectangle {
                x: 16
                y: 336
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
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

            BasicRectangle {
                x: 16
                y: 512
                width: 64
                height: 56
                radius: 8
                color: "#23835a"
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
                color: "#b06f00"
            }

            BasicRectangle {
                x: 16
                y: 688
                width: 64
                height: 56
                radius: 8
                color: "#b06f00"
            }

            BasicText {
                x: 16
                y: 80
                width: 64
                height: 704
                text: "1\n1\n2\n2\n4\n4\n7\n7"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
            }

            BasicText {
                x: 96
                y: 64
                width: 512
                height: 704
                text: "Northfields\nLighthouse\nWest End\nAirport\nHill View\nShipyard\nOpera\nBeach"
                color: "#ffffff"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 104
                width: 512
                height: 704
                text: "Mill Lane\nOld Port\nMarket\nMuseum, Park\nchange at Opera\nchange at Market\ndirect\nUniversity"
                color: "#a9b8d6"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 78
                width: 120
                height: 704
                text: "1\n2\n3\n4\n5\n6\n7\n8"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 78
                width: 144
                height: 704
                text: "4 min\n4 min\n6 min\n6 min\n8 min\n8 min\n10 min\n10 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 78
                width: 128
                height: 704
                text: "00:42\n00:51\n00:36\n01:12\n23:58\n00:04\n00:20\n00:30"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
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

            BasicRectangle {
                x: 16
                y: 160
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
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

            BasicRectangle {
                x: 16
                y: 336
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
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
                color: "#7d56c2"
            }

            BasicRectangle {
                x: 16
                y: 512
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
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
                y: 80
                width: 64
                height: 704
                text: "12\n18\n21\n34\n40\n52\nF1\nF2"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
            }

            BasicText {
                x: 96
                y: 64
                width: 512
                height: 704
                text: "Old Brewery\nHospital\nBotanical Garden\nStadium\n"
                      + "Old Airfield\nVineyards\nFerry, Lighthouse\nFerry, Seal Island"
                color: "#ffffff"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 104
                width: 512
                height: 704
                text: "Town Hall\nChestnut Avenue\nPark\nMarket\nRing road\nHill View\nOld Port\ndirect"
                color: "#a9b8d6"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 78
                width: 120
                height: 704
                text: "A\nA\nB\nC\nD\nD\nPier\nPier"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 78
                width: 144
                height: 704
                text: "10 min\n12 min\n15 min\n10 min\n15 min\n20 min\n20 min\n60 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 78
                width: 128
                height: 704
                text: "23:40\n00:10\n22:45\n00:25\n23:15\n22:30\n21:50\n19:00"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 32
            }
        }

        Slide {
            id: night
            duration: 14000
            tagColor: "#5b6b8c"

            BasicText {
                x: 96
                y: 8
                text: "Night lines"
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

            BasicRectangle {
                x: 16
                y: 160
                width: 64
                height: 56
                radius: 8
                color: "#2f6fde"
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

            BasicRectangle {
                x: 16
                y: 336
                width: 64
                height: 56
                radius: 8
                color: "#23835a"
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

            BasicRectangle {
                x: 16
                y: 512
                width: 64
                height: 56
                radius: 8
                color: "#b06f00"
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
                color: "#7d56c2"
            }

            BasicRectangle {
                x: 16
                y: 688
                width: 64
                height: 56
                radius: 8
                color: "#7d56c2"
            }

            BasicText {
                x: 16
                y: 80
                width: 64
                height: 704
                text: "N1\nN2\nN3\nN4\nN5\nN7\nN9\nN12"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 28
            }

            BasicText {
                x: 96
                y: 64
                width: 512
                height: 704
                text: "Northfields\nAirport\nWest End\nHill View\nShipyard\nBeach\nHospital\nStadium"
                color: "#ffffff"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 96
                y: 104
                width: 512
                height: 704
                text: "Mill Lane\nMuseum, Park\nMarket\nOpera\nMarket\nUniversity\nChestnut Avenue\nOld Brewery"
                color: "#a9b8d6"
                wordWrap: false
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 22
            }

            BasicText {
                x: 616
                y: 78
                width: 120
                height: 704
                text: "A\nA\nB\nB\nC\nC\nD\nD"
                color: "#ffffff"
                horizontalAlignment: Text.AlignHCenter
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.pixelSize: 32
            }

            BasicText {
                x: 744
                y: 78
                width: 144
                height: 704
                text: "30 min\n20 min\n30 min\n30 min\n60 min\n30 min\n60 min\n60 min"
                color: "#ffcf66"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
                font.family: "Manrope"
                font.bold: true
                font.pixelSize: 32
            }

            BasicText {
                x: 904
                y: 78
                width: 128
                height: 704
                text: "04:30\n04:40\n04:30\n04:15\n04:00\n04:30\n04:10\n04:20"
                color: "#ffffff"
                horizontalAlignment: Text.AlignRight
                lineHeightMode: Text.FixedHeight
                lineHeight: 88
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
        transType: "stagger"
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
