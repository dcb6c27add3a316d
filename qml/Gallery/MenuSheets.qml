// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

/// Menu boards: single entries and whole lists.
SheetColumns {
    id: root

    readonly property string samples: "qrc:///Nuvex/Components/icons/"

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
            name: qsTr("Garden salad")
            about: qsTr("Leaves, tomato, cucumber, herb dressing")
            price: "7.90"
            image: root.samples + "sampleSalad.png"
        }
    }

    Specimen {
        title: "MenuItem3"
        about: qsTr("An entry around its picture")
        ratio: 0.8

        MenuItem3 {
            width: 340
            height: 420
            name: qsTr("Cappuccino")
            about: qsTr("Double shot, velvet milk")
            price: "3.60"
            image: root.samples + "sampleCoffee.png"
        }
    }

    Specimen {
        title: "CartaMenu"
        about: qsTr("A price list that turns its pages")
        ratio: 0.8
        CartaMenu { width: 600; height: 640; title: qsTr("Our menu"); showDetails: true }
    }

    Specimen {
        title: "MenuItem2"
        about: qsTr("An entry beside its picture")

        MenuItem2 {
            width: 680
            height: 230
            color: "#17212b"
            radius: 16
            name: qsTr("Pizza Margherita")
            about: qsTr("Tomato, mozzarella, fresh basil, olive oil")
            calories: "780 kcal"
            price: "11.50"
            image: root.samples + "samplePizza.png"
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
            name: qsTr("Fresh orange juice")
            calories: "112 kcal"
            price: "4.20"
            image: root.samples + "sampleJuice.png"
        }
    }

    Specimen {
        title: "MenuSlideshow"
        about: qsTr("A list with the picture of one entry at a time")
        MenuSlideshow { width: 1120; height: 600; title: qsTr("Today"); showTime: 4000 }
    }
}
