// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0
import "samples.js" as Samples

/// Menu boards: single entries and whole lists.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "MenuItem1"
        about: qsTr("An entry below its picture")
        ratio: 0.8

        MenuItem1 {
            width: 400
            height: 440
            color: "white"
            radius: 16
            name: "Bruschetta"
            about: qsTr("Tomato, garlic, basil")
            price: "6,50 €"
            image: Samples.picture("tomatoes")
        }
    }

    Specimen {
        title: "MenuItem3"
        about: qsTr("An entry around its picture")
        ratio: 0.8

        MenuItem3 {
            width: 340
            height: 420
            name: "Gelato"
            about: qsTr("Vanilla, pistachio, strawberry")
            price: "6,00 €"
            image: Samples.picture("gelato")
        }
    }

    Specimen {
        title: "CartaMenu"
        about: qsTr("A price list that turns its pages")
        ratio: 0.8
        CartaMenu { width: 600; height: 640; title: qsTr("Our menu"); showDetails: true; model: Samples.dishes() }
    }

    Specimen {
        title: "MenuItem2"
        about: qsTr("An entry beside its picture")

        MenuItem2 {
            width: 680
            height: 230
            color: "#17212b"
            radius: 16
            name: "Tagliatelle al pomodoro"
            about: qsTr("Cherry tomatoes, basil, olive oil")
            calories: "780 kcal"
            price: "12,50 €"
            image: Samples.picture("pasta")
        }
    }

    Specimen {
        title: "MenuItem4"
        about: qsTr("An entry in one line")

        MenuItem4 {
            width: 680
            height: 104
            color: "#17212b"
            radius: 12
            number: "1"
            name: "Olive miste"
            calories: "112 kcal"
            price: "5,00 €"
            image: Samples.picture("olives")
        }
    }

    Specimen {
        title: "MenuSlideshow"
        about: qsTr("A list with the picture of one entry at a time")
        MenuSlideshow { width: 1120; height: 600; title: qsTr("Today"); showTime: 4000; model: Samples.dishes() }
    }
}
