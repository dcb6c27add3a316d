// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Rss: its feed, and the look of its entries.
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

        ServiceSection {
            name: "currentFeed"
            title: qsTr("Feed")
            isOpen: true
        }
        TextRow {
            name: "title"
            label: qsTr("Title")
            placeholderText: qsTr("the feed's own")
        }
        NumberRow {
            name: "imgSize"
            label: qsTr("Pictures")
            from: 0
            to: 1000
            suffix: " px"
        }
        NumberRow {
            name: "pixelSize"
            label: qsTr("Size")
            from: 1
            to: 500
            suffix: " px"
        }
        ChoiceRow {
            name: "fontFamily"
            label: qsTr("Font")
            choices: form.families.map(family => ({ text: family, is: family }))
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        ColorRow {
            name: "accentColor"
            label: qsTr("Accent")
        }
        TimeRow {
            name: "showTime"
            label: qsTr("Page duration")
        }
        LocaleRow {
        }
        PlateSection {}
        PlaceSection {}
    }
}
