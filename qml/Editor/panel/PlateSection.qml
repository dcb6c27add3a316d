// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The ground of an item that is a rectangle.
Section {
    title: qsTr("Background")

    ColorRow {
        name: "color"
        label: qsTr("Colour")
    }
    NumberRow {
        name: "radius"
        label: qsTr("Corner radius")
        to: 500
        suffix: " px"
    }
}
