// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of MenuSlideshow: its entries, layout and colours.
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
                { name: "details", label: qsTr("Details"), kind: "text", share: 3 },
                { name: "image", label: qsTr("Picture"), kind: "picture", share: 3 }
            ]
        }
        ChoiceRow {
            name: "mode"
            label: qsTr("Picture")
            choices: [
                { text: qsTr("On the right"), is: "right" },
                { text: qsTr("On the left"), is: "left" },
                { text: qsTr("Above"), is: "top" }
            ]
        }
        TimeRow {
            name: "showTime"
            label: qsTr("Duration")
        }
        Section {
            title: qsTr("Colours")

            ColorRow {
                name: "backColor"
                label: qsTr("Background")
            }
            ColorRow {
                name: "titleColor"
                label: qsTr("Title")
            }
            ColorRow {
                name: "textColor"
                label: qsTr("Names")
            }
            ColorRow {
                name: "detailsColor"
                label: qsTr("Details")
            }
            ColorRow {
                name: "markColor"
                label: qsTr("Mark")
            }
        }
        PlaceSection {}
    }
}
