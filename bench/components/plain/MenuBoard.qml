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
        height: 208
        fillMode: Image.PreserveAspectCrop
        asynchronous: true
        mipmap: true
    }
    component Leaf: Label { text: "\uf06c"; color: "#8fb85f"; font { family: "FontAwesome"; pixelSize: 24 } }
    component Card: Item {
        property alias title: heading.text
        property alias model: lines.model

        y: 336
        width: 560

        Headline { id: heading; y: 22; color: "#e3ab62"; font.pixelSize: 56; lineHeight: 1 }

        Repeater {
            id: lines

            Item {
                y: 108 + 98 * index
                width: 560

                Label { id: name; text: modelData[0]; color: "#f2eadd"; font { bold: true; pixelSize: 34 } }
                Label { id: price; anchors.right: parent.right; text: modelData[1]; color: "#e3ab62"; font { bold: true; pixelSize: 34 } }
                Label { y: 46; text: modelData[2]; color: "#c8bfb1"; font.pixelSize: 25 }
                Leaf { anchors { left: name.right; leftMargin: 10; baseline: name.baseline } visible: modelData.length > 3 }

                Row {
                    anchors { right: price.left; rightMargin: 10 }
                    y: 30
                    spacing: 8

                    Repeater {
                        model: Math.floor((506 - name.width - price.width) / 11.5)

                        Rectangle { width: 3.5; height: 3.5; radius: 1.75; color: "#b9b0a3"; opacity: 0.7 }
                    }
                }
            }
        }
    }

    Headline { x: 68; y: 16; text: "Osteria Faro"; color: "#f2eadd"; font.pixelSize: 80; lineHeight: 1 }
    Label { x: 680; y: 60; text: "Kitchen open until 23 h"; color: "#c8bfb1"; font.pixelSize: 32 }
    Leaf { x: 1288; y: 64; font.pixelSize: 28 }
    Label { x: 1328; y: 60; text: "vegetarian"; color: "#c8bfb1"; font.pixelSize: 32 }
    Clock { x: 1648; y: 40; width: 200; height: 80; color: "#f2eadd"; horizontalAlignment: Text.AlignRight; font.pixelSize: 56 }

    Show {
        x: 72; y: 136; width: 560; height: 208
        durations: [12000, 12000]

        Photo { source: root.media + "images/tomatoes.jpg" }
        Photo { source: root.media + "images/olives.jpg" }
    }
    Card {
        x: 72
        title: "Antipasti"
        model: [["Bruschetta", "6,50 €", "Tomato, garlic, basil", true], ["Olive miste", "5,00 €", "With orange and fennel", true],
                ["Burrata", "11,50 €", "Roast peppers, mint oil", true], ["Vitello tonnato", "13,00 €", "Veal, tuna cream, capers"]]
    }

    Show {
        x: 680; y: 136; width: 560; height: 208
        durations: [12000, 12000]
        offsetTime: 4000

        Photo { source: root.media + "images/pasta.jpg" }
        Photo { source: root.media + "images/wine.jpg" }
    }
    Card {
        x: 680
        title: "Pasta e forno"
        model: [["Tagliatelle al pomodoro", "12,50 €", "Cherry tomatoes, basil", true],
                ["Linguine alle vongole", "17,50 €", "Clams, white wine, chilli"],
                ["Lasagne della casa", "14,50 €", "Eight hours of ragù"], ["Branzino al forno", "23,00 €", "Sea bass, lemon, potatoes"]]
    }

    Show {
        x: 1288; y: 136; width: 560; height: 208
        durations: [12000, 12000]
        offsetTime: 8000

        Clip { width: 560; height: 208; muted: true; source: root.media + "videos/espresso.mp4" }
        Photo { source: root.media + "images/gelato.jpg" }
    }
    Card {
        x: 1288
        title: "Dolci e caffè"
        model: [["Gelato", "6,00 €", "Vanilla, pistachio, strawberry", true], ["Tiramisù", "7,50 €", "With our own savoiardi", true],
                ["Espresso", "2,60 €", "Roasted around the corner"], ["Amaro del faro", "4,80 €", "Sixteen herbs"]]
    }

    Photo { y: 848; width: 1920; height: 232; source: root.media + "images/ravioli.jpg" }
    Label { x: 72; y: 880; text: "PIATTO DEL GIORNO"; color: "#ffd9a0"; font { bold: true; pixelSize: 26; letterSpacing: 4 } }
    Headline { x: 68; y: 908; text: "Ravioli di zucca"; color: "#fff3df"; font.pixelSize: 88; lineHeight: 1 }
    Leaf { x: 72; y: 1016; color: "#ffd9a0" }
    Label { x: 108; y: 1012; text: "Pumpkin, sage butter, amaretti"; color: "#fff3df" }
    Label { x: 680; y: 912; width: 320; text: "14,50 €"; color: "#fff3df"; horizontalAlignment: Text.AlignRight; font { bold: true; pixelSize: 80 } }
}
