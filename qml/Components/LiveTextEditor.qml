// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of LiveText: the text, its plate, and when it enters and exits.
Item {
    id: root

    property bool radEditor: false
    property string size: radEditor ? "base" : "large"

    implicitWidth: form.implicitWidth
    implicitHeight: form.implicitHeight

    PanelForm {
        id: form
        anchors.fill: parent
        panel: root

        LinesRow {
            name: "text"
            label: qsTr("Text")
        }
        ColorRow {
            name: "color"
            label: qsTr("Colour")
        }
        FontRows {
            name: "font"
        }
        ChoiceRow {
            name: "horizontalAlignment"
            label: qsTr("Alignment")
            choices: [
                { text: qsTr("Left"), is: Text.AlignLeft, code: "Text.AlignLeft" },
                { text: qsTr("Centre"), is: Text.AlignHCenter, code: "Text.AlignHCenter" },
                { text: qsTr("Right"), is: Text.AlignRight, code: "Text.AlignRight" }
            ]
        }
        Section {
            title: qsTr("Background")

            ColorRow {
                name: "backColor"
                label: qsTr("Colour")
            }
            ColorRow {
                name: "borderColor"
                label: qsTr("Border")
            }
            NumberRow {
                name: "borderWidth"
                label: qsTr("Border width")
                to: 100
                suffix: " px"
            }
        }
        AppearanceSection {}
        PlaceSection {}
    }
}
