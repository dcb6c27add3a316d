// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of DigitalClock: what it shows, and how.
Item {
    id: root

    property bool radEditor: false
    property string size: radEditor ? "base" : "large"

    // A moment that looks different in every format.
    readonly property date sample: new Date(2026, 11, 24, 15, 30, 45)

    implicitWidth: form.implicitWidth
    implicitHeight: form.implicitHeight

    PanelForm {
        id: form
        anchors.fill: parent
        panel: root

        ChoiceRow {
            name: "format"
            label: qsTr("Display")
            choices: ["hh:mm", "hh:mm:ss", "h:mm AP", "dddd", "d MMMM", "d MMMM yyyy", "dddd, d MMMM", "dd.MM.yyyy"]
                .map(format => ({ text: root.sample.toLocaleString(Qt.locale(), format), is: format }))
        }
        TextRow {
            name: "format"
            label: qsTr("Format")
        }
        ColorRow {
            name: "textColor"
            label: qsTr("Colour")
        }
        ChoiceRow {
            name: "fontFamily"
            label: qsTr("Font")
            choices: form.families.map(family => ({ text: family, is: family }))
        }
        ChoiceRow {
            name: "horizontalAlignment"
            label: qsTr("Alignment")
            choices: [
                { text: qsTr("Left"), is: Text.AlignLeft, code: "Text.AlignLeft" },
                { text: qsTr("Centre"), is: Text.AlignHCenter, code: "Text.AlignHCenter" },
                { text: qsTr("Right"), is: Text.AlignRight, code: "Text.AlignRight" }
            ]
        }
        NumberRow {
            name: "pixelSize"
            label: qsTr("Size")
            from: 1
            to: 2000
            suffix: " px"
        }
        LocaleRow {
        }
        PlateSection {}
        PlaceSection {}
    }
}
