// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

Rectangle {
    id: root

    readonly property string media: "../../../demos/Menu Board/"

    width: 1920
    height: 1080
    color: "#1c1b1a"

    component Photo: Image {
        width: 560
        height: 288
        fillMode: Image.PreserveAspectCrop
        asynchronous: true
        mipmap: true
    }
    component Card: Item {
        property alias title: heading.text
        property alias model: lines.model

        y: 464
        width: 560

        Headline { id: heading; y: 22; color: "#e3ab62"; font.pixelSize: 56; lineHeight: 1 }

        Repeater {
            id: lines

            Item {
                y: 108 + 94 * index
                width: 560

                Label { id: name; text: modelData[0]; color: "#f2eadd"; font { bold: true; pixelSize: 32 } }
                Label { id: price; anchors.right: parent.right; text: modelData[1]; color: "#e3ab62"; font { bold: true; pixelSize: 32 } }
                Label { y: 44; text: modelData[2]; color: "#b9b0a3"; font.pixelSize: 24 }

                Row {
                    anchors { right: price.left; rightMargin: 10 }
                    y: 30
                    spacing: 8

                    Repeater {
                        model: Math.floor((540 - name.width - price.width) / 11.5)

                        Rectangle { width: 3.5; height: 3.5; radius: 1.75; color: "#b9b0a3"; opacity: 0.7 }
                    }
                }
            }
        }
    }

    Headline { x: 68; y: 36; text: "Osteria Faro"; color: "#f2eadd"; font.pixelSize: 88; lineHeight: 1 }
    Label { x: 680; y: 80; text: "Fresh pasta every morning  ·  Kitchen open until 23 h"; color: "#b9b0a3" }
    Clock { x: 1704; y: 56; width: 184; height: 80; color: "#f2eadd"; font.pixelSize: 56 }

    Show {
        x: 72; y: 168; width: 560; height: 288

        Photo { source: root.media + "images/tomatoes.jpg" }
        Photo { source: root.media + "images/olives.jpg" }
    }
    Card {
        x: 72
        title: "Antipasti"
        model: [["Bruschetta", "6.50", "Tomato, garlic, basil"], ["Olive miste", "5.00", "Marinated with orange and fennel"],
                ["Burrata", "11.50", "Roast peppers, mint oil"], ["Vitello tonnato", "13.00", "Veal, tuna cream, capers"],
                ["Tagliere", "16.00", "Three hams, three cheeses, figs"]]
    }

    Show {
        x: 680; y: 168; width: 560; height: 288
        offsetTime: 4000

        Photo { source: root.media + "images/pasta.jpg" }
        Photo { source: root.media + "images/wine.jpg" }
    }
    Card {
        x: 680
        title: "Pasta e forno"
        model: [["Tagliatelle al pomodoro", "12.50", "Cherry tomatoes, basil"], ["Ravioli di zucca", "14.00", "Pumpkin, sage butter"],
                ["Linguine alle vongole", "17.50", "Clams, white wine, chilli"], ["Lasagne della casa", "14.50", "Eight hours of ragù"],
                ["Branzino al forno", "23.00", "Sea bass, lemon, potatoes"]]
    }

    Show {
        x: 1288; y: 168; width: 560; height: 288
        durations: [12000, 9000]

        Clip { width: 560; height: 288; muted: true; source: root.media + "videos/espresso.mp4" }
        Photo { source: root.media + "images/gelato.jpg" }
    }
    Card {
        x: 1288
        title: "Dolci e caffè"
        model: [["Gelato", "6.00", "Vanilla, pistachio, strawberry"], ["Tiramisù", "7.50", "With our own savoiardi"],
                ["Panna cotta", "6.50", "Sour cherries"], ["Espresso", "2.60", "Roasted around the corner"],
                ["Amaro del faro", "4.80", "Sixteen herbs"]]
    }
}
