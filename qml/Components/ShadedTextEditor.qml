// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of ShadedText: the text, its font and its shadow.
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
            name: "textItem.text"
            label: qsTr("Text")
        }
        ColorRow {
            name: "textItem.color"
            label: qsTr("Colour")
        }
        FontRows {
            name: "textItem.font"
        }
        Section {
            title: qsTr("Shadow")

            ColorRow {
                name: "shadowItem.color"
                label: qsTr("Colour")
            }
            SliderRow {
                name: "shadowItem.radius"
                label: qsTr("Blur")
                to: 48
                decimals: 0
            }
            SliderRow {
                name: "shadowItem.horizontalOffset"
                label: qsTr("Horizontal offset")
                from: -40
                to: 40
                decimals: 0
            }
            SliderRow {
                name: "shadowItem.verticalOffset"
                label: qsTr("Vertical offset")
                from: -40
                to: 40
                decimals: 0
            }
        }
        PlaceSection {}
    }
}
