// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0
import "../GUI/private"

/// Choosing a colour, and the theme's own colours.
Card {
    id: root

    title: qsTr("Colours")

    Flow {
        width: parent.width
        spacing: 2 * Theme.unit

        ColorPicker {
            color: bs["brand-primary"]
        }

        Column {
            spacing: 1.5 * Theme.unit

            ColorButton {}
            ColorButton { color: "#80d9534f" }
            ColorButton { enabled: false }
            ColorButton { size: "large"; width: 18 * Theme.unit; color: bs["brand-success"] }
        }
    }

    Flow {
        width: parent.width
        spacing: Theme.unit

        Repeater {
            model: ["gray-darker", "gray-dark", "gray-light", "gray-lighter", "brand-primary", "brand-success",
                    "brand-info", "brand-warning", "brand-danger", "link-hover-color", "input-border",
                     "dropdown-border"]

            Row {
                width: 17 * Theme.unit
                spacing: Theme.unit

                Swatch {
                    width: 3 * Theme.unit
                    height: 3 * Theme.unit
                    sample: bs[modelData]
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    size: "small"
                    text: modelData
                }
            }
        }
    }
}
