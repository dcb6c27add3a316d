// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Twitter: what the messages are about, and their look.
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
            name: "phrase"
            label: qsTr("Search")
        }
        NumberRow {
            name: "limit"
            label: qsTr("Maximum")
            from: 1
            to: 50
        }
        NumberRow {
            name: "pixelSize"
            label: qsTr("Size")
            from: 1
            to: 500
            suffix: " px"
        }
        NumberRow {
            name: "avatarSize"
            label: qsTr("Pictures")
            from: 0
            to: 500
            suffix: " px"
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        ColorRow {
            name: "backColor"
            label: qsTr("Background")
        }
        TimeRow {
            name: "showTime"
            label: qsTr("Page duration")
        }
        LocaleRow {
        }
        ServiceSection {
            name: "service"
        }
        PlaceSection {}
    }
}
