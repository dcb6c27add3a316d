// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1080
    height: 1920
    color: "#f3eee3"

    Slideshow {
        id: house
        x: 0
        y: 0
        width: 1080
        height: 864
        color: "#12302b"
        transType: "fade"
        transTime: 1600

        Slide {
            id: court
            duration: 12000
            tagColor: "#c98b62"

            BasicImage {
                x: 0
                y: 0
                width: 1080
                height: 864
                source: "images/court.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: corner
            duration: 12000
            tagColor: "#2f4a42"

            BasicImage {
                x: 0
                y: 0
                width: 1080
                height: 864
                source: "images/corner.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: stairs
            duration: 12000
            tagColor: "#8ea38c"

            BasicImage {
                x: 0
                y: 0
                width: 1080
                height: 864
                source: "images/stairs.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    BasicRectangle {
        x: 0
        y: 776
        width: 688
        height: 232
        radius: 0
        color: "#12302b"
    }

    BasicText {
        x: 72
        y: 824
        text: "HARBOUR HOUSE"
        color: "#d8b877"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 24
        font.letterSpacing: 4
    }

    BasicText {
        x: 68
        y: 860
        text: "Good to see you"
        color: "#f3eee3"
        wordWrap: false
        font.family: "Caladea"
        font.pixelSize: 80
    }

    DigitalClock {
        x: 704
        y: 858
        width: 312
        height: 104
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#12302b"
        pixelSize: 88
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignRight
    }

    DigitalClock {
        x: 704
        y: 952
        width: 312
        height: 56
        color: "transparent"
        radius: 0
        format: "ddd, d MMMM"
        textColor: "#4a5a52"
        pixelSize: 32
        fontFamily: "Manrope"
        localeName: "en_GB"
        horizontalAlignment: Text.AlignRight
    }

    BasicText {
        x: 72
        y: 1048
        text: "Today in the house"
        color: "#12302b"
        font.family: "Caladea"
        font.pixelSize: 56
    }

    BasicRectangle {
        x: 72
        y: 1136
        width: 936
        height: 2
        radius: 0
        color: "#c9bfa9"
    }

    BasicText {
        x: 72
        y: 1152
        text: "09:00"
        color: "#8a4a22"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1152
        width: 760
        text: "Design review, autumn range"
        color: "#12302b"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1206
        width: 760
        text: "Studio Møller   ·   Gallery, 2nd floor"
        color: "#4a5a52"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 30
    }

    BasicRectangle {
        x: 72
        y: 1264
        width: 936
        height: 2
        radius: 0
        color: "#c9bfa9"
    }

    BasicText {
        x: 72
        y: 1280
        text: "10:30"
        color: "#8a4a22"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1280
        width: 760
        text: "Introduction for new tenants"
        color: "#12302b"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1334
        width: 760
        text: "House team   ·   Winter garden"
        color: "#4a5a52"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 30
    }

    BasicRectangle {
        x: 72
        y: 1392
        width: 936
        height: 2
        radius: 0
        color: "#c9bfa9"
    }

    BasicText {
        x: 72
        y: 1408
        text: "12:00"
        color: "#8a4a22"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1408
        width: 760
        text: "Shared lunch"
        color: "#12302b"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1462
        width: 760
        text: "Everybody is welcome   ·   Roof terrace"
        color: "#4a5a52"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 30
    }

    BasicRectangle {
        x: 72
        y: 1520
        width: 936
        height: 2
        radius: 0
        color: "#c9bfa9"
    }

    BasicText {
        x: 72
        y: 1536
        text: "14:00"
        color: "#8a4a22"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1536
        width: 760
        text: "Workshop: Clear signs"
        color: "#12302b"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1590
        width: 760
        text: "Lindqvist & Partner   ·   Room 4"
        color: "#4a5a52"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 30
    }

    BasicRectangle {
        x: 72
        y: 1648
        width: 936
        height: 2
        radius: 0
        color: "#c9bfa9"
    }

    BasicText {
        x: 72
        y: 1664
        text: "18:30"
        color: "#8a4a22"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1664
        width: 760
        text: "Harbour talk: Building with clay"
        color: "#12302b"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 40
    }

    BasicText {
        x: 248
        y: 1718
        width: 760
        text: "Dr. Amélie Roux   ·   Great hall"
        color: "#4a5a52"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 30
    }

    BasicRectangle {
        x: 0
        y: 1816
        width: 1080
        height: 104
        radius: 0
        color: "#12302b"
    }

    BasicText {
        x: 72
        y: 1816
        width: 936
        height: 104
        text: "Guest network: Harbour   ·   Reception is open until 20 h"
        color: "#e6dcc6"
        verticalAlignment: Text.AlignVCenter
        font.family: "Manrope"
        font.pixelSize: 28
    }
}
