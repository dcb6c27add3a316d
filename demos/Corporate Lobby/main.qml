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
        width: 720
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
        y: 792
        width: 720
        height: 288
        radius: 0
        color: "#14233a"
    }

    BasicText {
        x: 64
        y: 840
        text: "NORDLICHT"
        color: "#f3b765"
        font.letterSpacing: 5
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 24
    }

    BasicText {
        x: 60
        y: 872
        text: "Welcome"
        color: "#ffffff"
        font.family: "Caladea"
        font.pixelSize: 112
    }

    BasicText {
        x: 64
        y: 1000
        text: "Please sign in at the desk"
        color: "#c3cddb"
        font.family: "Manrope"
        font.pixelSize: 28
    }

    DigitalClock {
        x: 768
        y: 56
        width: 256
        height: 144
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#14233a"
        pixelSize: 128
        fontFamily: "Manrope"
    }

    DigitalClock {
        x: 1088
        y: 72
        width: 336
        height: 64
        color: "transparent"
        radius: 0
        format: "dddd"
        textColor: "#14233a"
        pixelSize: 40
        localeName: "en_GB"
        fontFamily: "Manrope"
    }

    DigitalClock {
        x: 1088
        y: 120
        width: 336
        height: 64
        color: "transparent"
        radius: 0
        format: "d MMMM yyyy"
        textColor: "#56606f"
        pixelSize: 32
        localeName: "en_GB"
        fontFamily: "Manrope"
    }

    Weather {
        x: 1488
        y: 48
        width: 368
        height: 160
        color: "#14233a"
        radius: 8
        place: "Hamburg"
        lat: 53.55
        lon: 9.99
        showDescription: true
        showIcon: true
        service: "data/weather.json"
    }

    BasicCalendar {
        x: 784
        y: 256
        width: 512
        height: 464
        dayColor: "#14233a"
        weekdayColor: "#8a4a12"
        titleColor: "#14233a"
        todayColor: "#ffffff"
        markColor: "#b4601a"
        backColor: "#ffffff"
        localeName: "en_GB"
    }

    BasicText {
        x: 784
        y: 736
        text: "Expected today"
        color: "#14233a"
        font.family: "Caladea"
        font.pixelSize: 40
    }

    BasicRectangle {
        x: 784
        y: 800
        width: 512
        height: 2
        radius: 0
        color: "#cfc9bd"
    }

    BasicText {
        x: 784
        y: 814
        text: "09:30"
        color: "#8a4a12"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 810
        width: 392
        text: "Maria Keller, Aurel Systems"
        color: "#14233a"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 846
        width: 392
        text: "Fjord, 4th floor"
        color: "#56606f"
        font.family: "Manrope"
        font.pixelSize: 22
    }

    BasicRectangle {
        x: 784
        y: 880
        width: 512
        height: 2
        radius: 0
        color: "#cfc9bd"
    }

    BasicText {
        x: 784
        y: 894
        text: "11:00"
        color: "#8a4a12"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 890
        width: 392
        text: "Jonas Lindqvist, Norrpulp"
        color: "#14233a"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 926
        width: 392
        text: "Skerry, 2nd floor"
        color: "#56606f"
        font.family: "Manrope"
        font.pixelSize: 22
    }

    BasicRectangle {
        x: 784
        y: 960
        width: 512
        height: 2
        radius: 0
        color: "#cfc9bd"
    }

    BasicText {
        x: 784
        y: 974
        text: "14:15"
        color: "#8a4a12"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 970
        width: 392
        text: "Delegation from Gdańsk"
        color: "#14233a"
        elide: Text.ElideRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 28
    }

    BasicText {
        x: 904
        y: 1006
        width: 392
        text: "Auditorium"
        color: "#56606f"
        font.family: "Manrope"
        font.pixelSize: 22
    }

    Rss {
        x: 1344
        y: 256
        width: 512
        height: 760
        color: "#ffffff"
        radius: 8
        currentFeed: "data/news.xml"
        title: "News from the house"
        imgSize: 0
        pixelSize: 28
        textColor: "#14233a"
        accentColor: "#b4601a"
        showTime: 12000
        localeName: "en_GB"
    }
}
