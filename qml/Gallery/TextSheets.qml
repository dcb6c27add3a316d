// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../Components"

/// Texts, plates and controls.
SheetColumns {
    id: root

    narrowest: 40
    most: 4

    Specimen {
        title: "BasicText"
        about: qsTr("A text")
        BasicText { text: qsTr("Open until eight"); color: "white"; font.family: "Open Sans"; font.pixelSize: 56 }
    }

    Specimen {
        title: "GlowText"
        about: qsTr("A text that glows")
        GlowText { text: qsTr("Tonight"); color: "white"; glowColor: "#2f9bff"; font.pixelSize: 96 }
    }

    Specimen {
        title: "ShadedText"
        about: qsTr("A text with a shadow")
        wall: "#8ea38c"

        ShadedText {
            textItem.text: qsTr("Fresh today")
            textItem.color: "white"
            textItem.font.pixelSize: 84
            shadowItem.color: "#c0000000"
            shadowItem.radius: 12
        }
    }

    Specimen {
        title: "LiveText"
        about: qsTr("A text that comes and goes")
        LiveText { width: 560; height: 110; text: qsTr("Gate 12 is open"); font.pixelSize: 56 }
    }

    Specimen {
        title: "BasicRectangle"
        about: qsTr("A plain plate")
        BasicRectangle { width: 240; height: 150; color: "#2878bd"; radius: 12 }
    }

    Specimen {
        title: "BasicButton"
        about: qsTr("A button for visitors")
        BasicButton { width: 240; height: 64; text: qsTr("Find your way"); type: "primary"; size: "xlarge" }
    }

    Specimen {
        title: "BasicEdit"
        about: qsTr("A field for visitors")
        BasicEdit { width: 320; height: 56; placeholderText: qsTr("Your name"); size: "xlarge" }
    }
}
