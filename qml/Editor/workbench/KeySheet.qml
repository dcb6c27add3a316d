// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "keys.js" as EditorKeys

/// What the keys do, and the mouse.
BGUI.ModalPopup {
    id: root

    width: Math.min(parent ? parent.width - 4 * BGUI.Theme.unit : 0, 96 * BGUI.Theme.unit)
    height: Math.min(parent ? parent.height - 4 * BGUI.Theme.unit : 0, implicitHeight)
    implicitHeight: sheet.implicitHeight + 6 * BGUI.Theme.unit
    padding: 3 * BGUI.Theme.unit

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: BGUI.ScrollPane {
        id: pane
        objectName: "keySheet"
        focus: true
        contentHeight: sheet.height
        clip: true
        Keys.onEscapePressed: root.close()
        Keys.onReturnPressed: root.close()

        Column {
            id: sheet
            width: pane.width - 2 * BGUI.Theme.unit
            spacing: 2 * BGUI.Theme.unit

            BGUI.Label {
                size: "h3"
                text: qsTr("Keys")
            }

            Flow {
                width: parent.width
                spacing: 2 * BGUI.Theme.unit

                Repeater {
                    model: EditorKeys.sheet

                    Row {
                        width: (sheet.width - parent.spacing) / 2 - 1
                        spacing: 1.5 * BGUI.Theme.unit

                        BGUI.Label {
                            width: 18 * BGUI.Theme.unit
                            font.family: BGUI.Theme.codeFamily
                            strong: true
                            text: modelData.keys
                        }

                        BGUI.Label {
                            width: parent.width - 19.5 * BGUI.Theme.unit
                            text: modelData.effect
                        }
                    }
                }
            }
        }
    }
}
