// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of CartaMenu: the list, and the look of its parts.
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
            name: "title"
            label: qsTr("Title")
        }
        EntriesRow {
            name: "model"
            label: qsTr("Entries")
            fields: [
                { name: "name", label: qsTr("Name"), kind: "text" },
                { name: "price", label: qsTr("Price"), kind: "text", share: 1 },
                { name: "details", label: qsTr("Details"), kind: "text", share: 4 },
                { name: "icon", label: qsTr("Mark"), kind: "text", hint: "fa-leaf", share: 1 }
            ]
        }
        CheckRow {
            name: "showDetails"
            label: qsTr("Details")
        }
        TimeRow {
            name: "pageTime"
            label: qsTr("Page duration")
        }
        ColorRow {
            name: "backColor"
            label: qsTr("Background")
        }
        ColorRow {
            name: "iconColor"
            label: qsTr("Marks")
        }
        Section {
            title: qsTr("Title")
            isOpen: false

            ColorRow {
                name: "titleColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "titleFont"
            }
        }
        Section {
            title: qsTr("Names")
            isOpen: false

            ColorRow {
                name: "nameColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "nameFont"
            }
        }
        Section {
            title: qsTr("Prices")
            isOpen: false

            ColorRow {
                name: "priceColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "priceFont"
            }
        }
        Section {
            title: qsTr("Details")
            isOpen: false

            ColorRow {
                name: "detailsColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "detailsFont"
            }
        }
        PlaceSection {}
    }
}
