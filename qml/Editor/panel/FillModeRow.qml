// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// How a picture fills its item.
ChoiceRow {
    name: "fillMode"
    label: qsTr("Fill mode")
    choices: [
        { text: qsTr("Whole picture"), is: Image.PreserveAspectFit, code: "Image.PreserveAspectFit" },
        { text: qsTr("Fill, cut edges"), is: Image.PreserveAspectCrop, code: "Image.PreserveAspectCrop" },
        { text: qsTr("Stretch"), is: Image.Stretch, code: "Image.Stretch" },
        { text: qsTr("Repeat"), is: Image.Tile, code: "Image.Tile" },
        { text: qsTr("At its own size"), is: Image.Pad, code: "Image.Pad" }
    ]
}
