// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of KImage: its picture and the movement of the camera.
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
        Section {
            title: qsTr("Camera")

            CheckRow {
                name: "kenburnsEnable"
                label: qsTr("Moving")
            }
            SliderRow {
                name: "kScale0"
                label: qsTr("Start scale")
                from: 0.5
                to: 4
            }
            SliderRow {
                name: "kScale1"
                label: qsTr("End scale")
                from: 0.5
                to: 4
            }
            TimeRow {
                name: "kTime"
                label: qsTr("Duration")
            }
            ChoiceRow {
                name: "easingType"
                label: qsTr("Easing")
                choices: [
                    { text: qsTr("Smooth"), is: Easing.InOutSine, code: "Easing.InOutSine" },
                    { text: qsTr("Linear"), is: Easing.Linear, code: "Easing.Linear" },
                    { text: qsTr("Strong"), is: Easing.InOutCubic, code: "Easing.InOutCubic" },
                    { text: qsTr("Slows down"), is: Easing.OutQuad, code: "Easing.OutQuad" },
                    { text: qsTr("Speeds up"), is: Easing.InQuad, code: "Easing.InQuad" }
                ]
            }
        }
        PlaceSection {}
    }
}
