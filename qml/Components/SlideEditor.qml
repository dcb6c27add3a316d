// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of Slide: how long it stays, and its mark in the editor.
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

        TimeRow {
            name: "duration"
            label: qsTr("Duration")
        }
        ColorRow {
            name: "tagColor"
            label: qsTr("Tag colour")
        }
    }
}
