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
        y: 36
        text: "Osteria Faro"
        color: "#f2eadd"
        font.family: "Caladea"
        font.pixelSize: 88
    }

    BasicText {
        x: 680
        y: 80
        text: "Fresh pasta every morning  ·  Kitchen open until 23 h"
        color: "#b9b0a3"
        font.family: "Manrope"
        font.pixelSize: 28
    }

    DigitalClock {
        x: 1704
        y: 56
        width: 184
        height: 80
        color: "transparent"
        radius: 0
        format: "hh:mm"
        textColor: "#f2eadd"
        pixelSize: 56
        fontFamily: "Manrope"
    }

    Slideshow {
        id: pictures1
        x: 72
        y: 168
        width: 560
        height: 288
        color: "#2a2826"
        transType: "fade"
        transTime: 1600
        offsetTime: 0

        Slide {
            id: tomatoes
            duration: 9000
            tagColor: "#c23b22"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "images/tomatoes.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: olives
            duration: 9000
            tagColor: "#7f8a34"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "images/olives.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 36
        y: 464
        width: 632
        height: 592
        title: "Antipasti"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#b9b0a3"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 32
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 32
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 24
        model: [
            { name: "Bruschetta", price: "6.50", details: "Tomato, garlic, basil" },
            { name: "Olive miste", price: "5.00", details: "Marinated with orange and fennel" },
            { name: "Burrata", price: "11.50", details: "Roast peppers, mint oil" },
            { name: "Vitello tonnato", price: "13.00", details: "Veal, tuna cream, capers" },
            { name: "Tagliere", price: "16.00", details: "Three hams, three cheeses, figs" }
        ]
    }

    Slideshow {
        id: pictures2
        x: 680
        y: 168
        width: 560
        height: 288
        color: "#2a2826"
        transType: "fade"
        transTime: 1600
        offsetTime: 4000

        Slide {
            id: pasta
            duration: 9000
            tagColor: "#e3ab62"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "images/pasta.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }

        Slide {
            id: wine
            duration: 9000
            tagColor: "#5b1020"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "images/wine.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 644
        y: 464
        width: 632
        height: 592
        title: "Pasta e forno"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#b9b0a3"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 32
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 32
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 24
        model: [
            { name: "Tagliatelle al pomodoro", price: "12.50", details: "Cherry tomatoes, basil" },
            { name: "Ravioli di zucca", price: "14.00", details: "Pumpkin, sage butter" },
            { name: "Linguine alle vongole", price: "17.50", details: "Clams, white wine, chilli" },
            { name: "Lasagne della casa", price: "14.50", details: "Eight hours of ragù" },
            { name: "Branzino al forno", price: "23.00", details: "Sea bass, lemon, potatoes" }
        ]
    }

    Slideshow {
        id: pictures3
        x: 1288
        y: 168
        width: 560
        height: 288
        color: "#2a2826"
        transType: "fade"
        transTime: 1600

        Slide {
            id: espresso
            duration: 12000
            tagColor: "#7a4a22"

            BasicVideo {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "videos/espresso.mp4"
                fillMode: VideoOutput.PreserveAspectCrop
                muted: true
            }
        }

        Slide {
            id: gelato
            duration: 9000
            tagColor: "#c8767a"

            BasicImage {
                x: 0
                y: 0
                width: 560
                height: 288
                source: "images/gelato.jpg"
                fillMode: Image.PreserveAspectCrop
            }
        }
    }

    CartaMenu {
        x: 1252
        y: 464
        width: 632
        height: 592
        title: "Dolci e caffè"
        showDetails: true
        backColor: "transparent"
        titleColor: "#e3ab62"
        nameColor: "#f2eadd"
        priceColor: "#e3ab62"
        detailsColor: "#b9b0a3"
        titleFont.family: "Caladea"
        titleFont.bold: false
        titleFont.italic: false
        titleFont.pixelSize: 56
        nameFont.family: "Manrope"
        nameFont.bold: true
        nameFont.pixelSize: 32
        priceFont.family: "Manrope"
        priceFont.bold: true
        priceFont.pixelSize: 32
        detailsFont.family: "Manrope"
        detailsFont.pixelSize: 24
        model: [
            { name: "Gelato", price: "6.00", details: "Vanilla, pistachio, strawberry" },
            { name: "Tiramisù", price: "7.50", details: "With our own savoiardi" },
            { name: "Panna cotta", price: "6.50", details: "Sour cherries" },
            { name: "Espresso", price: "2.60", details: "Roasted around the corner" },
            { name: "Amaro del faro", price: "4.80", details: "Sixteen herbs" }
        ]
    }
}
