// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import Nuvex.Components 1.0

Rectangle {
    id: root
    width: 1920
    height: 1080
    color: "#1c1b1a"

    BasicText {
        x: 68
        y: 16
        text: "Osteria Faro"
        color: "#f2eadd"
        font.family: "Caladea"
        font.pixelSize: 80
    }

    BasicText {
        x: 680
        y: 60
        text: "Kitchen open until 23 h"
        color: "#c8bfb1"
        font.family: "Manrope"
        font.pixelSize: 32
    }

    BasicText {
        x: 1288
        y: 64
        text: "\uf06c"
        color: "#8fb85f"
        font.family: "FontAwesome"
        font.pixelSize: 28
    }

    BasicText {
        x: 1328
        y: 60
        text: "vegetarian"
        color: "#c8bfb1"
        font.family: "Manrope"
        font.pixelSize: 32
    }

    DigitalClock {
        x: 1648
        y: 40
        width: 208
        height: 80
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#f2eadd"
        pixelSize: 56
        fontFamily: "Manrope"
        horizontalAlignment: Text.AlignRight
    }

    Slideshow {
        id: pictures1
        x: 72
        y: 136
        width: 560
        height: 208
        color: "#2a2826"
        transType: "fade"
        transTime: 1600
        offsetTime: 0

        Slide {
            id: tomatoes
            duration: 12000
            tagColor: "#c23b22"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "images/tomatoes.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: olives
            duration: 12000
            tagColor: "#7f8a34"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "images/olives.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 36
        y: 336
        width: 632
        height: 504
        bottomMargin: 0
        spacing: 12
        title: "Antipasti"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#c8bfb1"
        iconColor: "#8fb85f"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 34
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 34
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 25
        model: [
            { name: "Bruschetta", price: "6,50 €", details: "Tomato, garlic, basil", icon: "fa-leaf" },
            { name: "Olive miste", price: "5,00 €", details: "With orange and fennel", icon: "fa-leaf" },
            { name: "Burrata", price: "11,50 €", details: "Roast peppers, mint oil", icon: "fa-leaf" },
            { name: "Vitello tonnato", price: "13,00 €", details: "Veal, tuna cream, capers" }
        ]
    }

    Slideshow {
        id: pictures2
        x: 680
        y: 136
        width: 560
        height: 208
        color: "#2a2826"
        transType: "fade"
        transTime: 1600
        offsetTime: 4000

        Slide {
            id: pasta
            duration: 12000
            tagColor: "#e3ab62"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "images/pasta.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: wine
            duration: 12000
            tagColor: "#5b1020"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "images/wine.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 644
        y: 336
        width: 632
        height: 504
        bottomMargin: 0
        spacing: 12
        title: "Pasta e forno"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#c8bfb1"
        iconColor: "#8fb85f"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 34
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 34
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 25
        model: [
            { name: "Tagliatelle al pomodoro", price: "12,50 €", details: "Cherry tomatoes, basil", icon: "fa-leaf" },
            { name: "Linguine alle vongole", price: "17,50 €", details: "Clams, white wine, chilli" },
            { name: "Lasagne della casa", price: "14,50 €", details: "Eight hours of ragù" },
            { name: "Branzino al forno", price: "23,00 €", details: "Sea bass, lemon, potatoes" }
        ]
    }

    Slideshow {
        id: pictures3
        x: 1288
        y: 136
        width: 560
        height: 208
        color: "#2a2826"
        transType: "fade"
        transTime: 1600
        offsetTime: 8000

        Slide {
            id: espresso
            duration: 12000
            tagColor: "#7a4a22"

            BasicVideo {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "videos/espresso.mp4"
                fillMode: VideoOutput.PreserveAspectCrop
                muted: true
            }
        }

        Slide {
            id: gelato
            duration: 12000
            tagColor: "#c8767a"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 208
                source: "images/gelato.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 1252
        y: 336
        width: 632
        height: 504
        bottomMargin: 0
        spacing: 12
        title: "Dolci e caffè"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#c8bfb1"
        iconColor: "#8fb85f"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 34
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 34
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 25
        model: [
            { name: "Gelato", price: "6,00 €", details: "Vanilla, pistachio, strawberry", icon: "fa-leaf" },
            { name: "Tiramisù", price: "7,50 €", details: "With our own savoiardi", icon: "fa-leaf" },
            { name: "Espresso", price: "2,60 €", details: "Roasted around the corner" },
            { name: "Amaro del faro", price: "4,80 €", details: "Sixteen herbs" }
        ]
    }

    BasicImage {
        x: 0
        y: 848
        width: 1920
        height: 232
        source: "images/ravioli.jpg"
        fillMode: Image.PreserveAspectCrop
    }

    BasicText {
        x: 72
        y: 880
        text: "PIATTO DEL GIORNO"
        color: "#ffd9a0"
        font.letterSpacing: 4
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 26
    }

    BasicText {
        x: 68
        y: 908
        text: "Ravioli di zucca"
        color: "#fff3df"
        wordWrap: false
        font.family: "Caladea"
        font.pixelSize: 88
    }

    BasicText {
        x: 72
        y: 1016
        text: "\uf06c"
        color: "#ffd9a0"
        font.family: "FontAwesome"
        font.pixelSize: 24
    }

    BasicText {
        x: 108
        y: 1012
        text: "Pumpkin, sage butter, amaretti"
        color: "#fff3df"
        wordWrap: false
        font.family: "Manrope"
        font.pixelSize: 28
    }

    BasicText {
        x: 680
        y: 912
        width: 320
        text: "14,50 €"
        color: "#fff3df"
        horizontalAlignment: Text.AlignRight
        wordWrap: false
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 80
    }
}
