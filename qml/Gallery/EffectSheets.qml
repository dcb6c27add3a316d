// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

/// What moves for the sake of it.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "Fireworks"
        about: qsTr("Rockets that burst")
        wall: "#0b1017"
        margin: 0
        Fireworks { width: 640; height: 360; number: 3 }
    }

    Specimen {
        title: "Particles"
        about: qsTr("Small pictures that drift")
        wall: "#17212b"
        margin: 0
        Particles { width: 640; height: 360; size: 32; emitRate: 14; velocity: 50 }
    }

    Specimen {
        title: "AnimatedItem"
        about: qsTr("A plate that moves, with all that is on it")

        AnimatedItem {
            width: 240
            height: 130
            color: "#2878bd"
            radius: 12
            motion: "float"

            BasicText {
                anchors.centerIn: parent
                text: qsTr("Float")
                color: "white"
                font.family: "Open Sans"
                font.pixelSize: 48
            }
        }
    }
}
