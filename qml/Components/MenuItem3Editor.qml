// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of MenuItem3: what is offered, and its colours.
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

        TextRow {
            name: "name"
            label: qsTr("Name")
        }
        TextRow {
            name: "about"
            label: qsTr("Description")
        }
        TextRow {
            name: "price"
            label: qsTr("Price")
        }
        FileRow {
            name: "image"
            label: qsTr("Picture")
        }
        Section {
            title: qsTr("Colours")

            ColorRow {
                name: "nameColor"
                label: qsTr("Name")
            }
            ColorRow {
                name: "aboutColor"
                label: qsTr("Description")
            }
            ColorRow {
                name: "priceColor"
                label: qsTr("Price")
            }
            ColorRow {
                name: "sealColor"
                label: qsTr("Seal")
            }
        }
        PlateSection {}
        PlaceSection {}
    }
}
