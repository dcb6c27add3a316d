// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of ChromaVideo: the file and what of it turns transparent.
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
            label: qsTr("Video")
            kind: "video"
        }
        CheckRow {
            name: "autoPlay"
            label: qsTr("Autoplay")
        }
        Section {
            title: qsTr("Key")

            SliderRow {
                name: "th"
                label: qsTr("Sharpness")
                to: 10
            }
            SliderRow {
                name: "a2"
                label: qsTr("Threshold")
                to: 10
            }
            SliderRow {
                name: "amt"
                label: qsTr("Spill")
                to: 1
            }
            ColorRow {
                name: "bg"
                label: qsTr("Light")
            }
            SliderRow {
                name: "plus"
                label: qsTr("Brightness")
                from: -0.5
                to: 0.5
            }
        }
        CheckRow {
            name: "muted"
            label: qsTr("Muted")
        }
        PlaceSection {}
    }
}
