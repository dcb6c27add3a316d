// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of BasicVideo: the file and how it is played.
Item {
    id: root

    property bool radEditor: false
    property string size: radEditor ? "base" : "large"

    // Names of the media module can be used where the document imports it; their numbers everywhere.
    readonly property bool namesMedia: /^\s*import\s+QtMultimedia\s/m.test(CAPI.editedSourceCode())

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
        ChoiceRow {
            name: "fillMode"
            label: qsTr("Fill mode")
            choices: [
                { text: qsTr("Whole video"), is: 1, code: root.namesMedia ? "VideoOutput.PreserveAspectFit" : "1" },
                { text: qsTr("Fill, cut edges"), is: 2,
                  code: root.namesMedia ? "VideoOutput.PreserveAspectCrop" : "2" },
                { text: qsTr("Stretch"), is: 0, code: root.namesMedia ? "VideoOutput.Stretch" : "0" }
            ]
        }
        ChoiceRow {
            name: "loops"
            label: qsTr("Repeat")
            choices: [
                { text: qsTr("Endlessly"), is: -1, code: root.namesMedia ? "MediaPlayer.Infinite" : "-1" },
                { text: qsTr("Once"), is: 1, code: "1" },
                { text: qsTr("Twice"), is: 2, code: "2" }
            ]
        }
        CheckRow {
            name: "muted"
            label: qsTr("Muted")
        }
        SliderRow {
            name: "volume"
            label: qsTr("Volume")
            to: 1
        }
        PlaceSection {}
    }
}
