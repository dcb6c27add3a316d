// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1920
    height: 1080
    color: "#f1eee8"

    KImage {
        x: 0
        y: 0
        width: 608
        height: 1080
        source: "images/towers.jpg"
        fillMode: Image.PreserveAspectCrop
        kenburnsEnable: true
        kScale0: 1
        kScale1: 1.06
        kTime: 30000
    }

    BasicRectangle {
        x: 0
        y: 784
        width: 608
        height: 296
        radius: 0
        color: "#14233a"
    }

    BasicText {
        x: 64
        y: 836
        text: "NORDLICHT"
        color: "#f3b765"
        font.letterSpacing: 5
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 26
    }

    BasicText {
        x: 60
        y: 866
        text: "Welcome"
        color: "#ffffff"
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 104
    }

    BasicText {
        x: 64
        y: 996
        text: "Please sign in at the desk"
        color: "#c3cddb"
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 32
    }

    DigitalClock {
        x: 658
        y: 36
        width: 576
        height: 160
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#14233a"
        pixelSize: 144
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignLeft
    }

    DigitalClock {
        x: 664
        y: 186
        width: 576
        height: 72
        color: "transparent"
        radius: 0
        format: "dddd, d MMMM"
        textColor: "#56606f"
        pixelSize: 40
        localeName: "en_GB"
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignLeft
    }

    Weather {
        x: 1280
        y: 64
        width: 576
        height: 184
        color: "#14233a"
        radius: 12
        place: "Hamburg"
        lat: 53.55
        lon: 9.99
        showDescription: true
        showIcon: true
        fontFamily: "Manrope"
        service: "data/weather.json"
    }

    BasicCalendar {
        x: 672
        y: 280
        width: 576
        height: 360
        dayColor: "#14233a"
        weekdayColor: "#8a4a12"
        titleColor: "#14233a"
        todayColor: "#ffffff"
        markColor: "#b4601a"
        backColor: "#ffffff"
        dayFont.family: "Manrope"
        localeName: "en_GB"
    }

    Visitors {
        x: 672
        y: 672
        width: 576
        height: 344
        guests: [
            { time: "08:30", name: "Ines Albers, Nordsicht", place: "Fjord, 4th floor" },
            { time: "09:30", name: "Maria Keller, Aurel", place: "Fjord, 4th floor" },
            { time: "11:00", name: "Jonas Lindqvist, Norrpulp", place: "Skerry, 2nd floor" },
            { time: "12:30", name: "Class 9b, Altona", place: "Canteen" },
            { time: "14:15", name: "Delegation from Gdańsk", place: "Auditorium" },
            { time: "15:45", name: "Tomasz Wrona, Baltpak", place: "Skerry, 2nd floor" },
            { time: "17:00", name: "Dr. Ayla Demir, TU", place: "Archive, ground floor" },
            { time: "18:00", name: "Guests of the lecture", place: "Auditorium" },
            { time: "20:30", name: "Night tour, four guests", place: "Roof garden" },
            { time: "22:00", name: "Hanna Voss, security", place: "Desk" }
        ]
    }

    BasicRectangle {
        x: 1280
        y: 280
        width: 576
        height: 736
        radius: 12
        color: "#ffffff"
    }

    Rss {
        x: 1292
        y: 290
        width: 552
        height: 714
        color: "transparent"
        radius: 0
        currentFeed: "data/news.xml"
        title: "News from the house"
        imgSize: 0
        pixelSize: 32
        textColor: "#14233a"
        accentColor: "#b4601a"
        fontFamily: "Manrope"
        showTime: 12000
        localeName: "en_GB"
    }
}
