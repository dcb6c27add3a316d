// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Where the item stands and how large it is: the last part of every panel.
Section {
    id: root

    /// Whether the item's size can be set.
    property bool hasSize: true

    title: qsTr("Position and size")
    isOpen: false

    NumberRow {
        name: "x"
        label: qsTr("Left")
        from: -20000
        to: 20000
        suffix: " px"
    }
    NumberRow {
        name: "y"
        label: qsTr("Top")
        from: -20000
        to: 20000
        suffix: " px"
    }
    NumberRow {
        name: "width"
        label: qsTr("Width")
        visible: root.hasSize
        to: 20000
        suffix: " px"
    }
    NumberRow {
        name: "height"
        label: qsTr("Height")
        visible: root.hasSize
        to: 20000
        suffix: " px"
    }
    SliderRow {
        name: "opacity"
        label: qsTr("Opacity")
        to: 1
    }
    SliderRow {
        name: "rotation"
        label: qsTr("Rotation")
        from: -180
        to: 180
        decimals: 0
        suffix: "°"
    }
}
