// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// Colours of a ColorPicker to click.
Flow {
    id: root

    property Item picker
    property var samples: []

    spacing: Theme.unit * 0.75

    Repeater {
        model: root.samples

        SwatchButton {
            visible: root.picker.hasOpacity || sample.a === 1
            size: root.picker.size
            sample: modelData
            selected: Qt.colorEqual(root.picker.color, sample)
            onClicked: root.picker.pick(sample)
        }
    }
}
