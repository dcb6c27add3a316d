// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of LiveImage: its picture, and when it enters and exits.
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

        FileRow {
            name: "source"
            label: qsTr("Picture")
        }
        FillModeRow {}
        ColorRow {
            name: "backColor"
            label: qsTr("Background")
        }
        AppearanceSection {}
        PlaceSection {}
    }
}
