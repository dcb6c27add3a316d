// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of BasicWebView: its page.
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
            name: "url"
            label: qsTr("Address")
            placeholderText: qsTr("https://")
        }
        SliderRow {
            name: "zoomFactor"
            label: qsTr("Zoom")
            from: 0.25
            to: 5
        }
        TimeRow {
            name: "reloadTime"
            label: qsTr("Reload every")
        }
        PlaceSection {}
    }
}
