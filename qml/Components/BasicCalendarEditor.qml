// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0

/// The panel of BasicCalendar: its colours and fonts.
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

        LocaleRow {
        }
        ColorRow {
            name: "backColor"
            label: qsTr("Background")
        }
        ColorRow {
            name: "markColor"
            label: qsTr("Today")
        }
        ColorRow {
            name: "todayColor"
            label: qsTr("Today's number")
        }
        Section {
            title: qsTr("Title")
            isOpen: false

            ColorRow {
                name: "titleColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "titleFont"
            }
        }
        Section {
            title: qsTr("Days")
            isOpen: false

            ColorRow {
                name: "dayColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "dayFont"
            }
        }
        Section {
            title: qsTr("Weekdays")
            isOpen: false

            ColorRow {
                name: "weekdayColor"
                label: qsTr("Colour")
            }
            FontRows {
                name: "weekdayFont"
            }
        }
        PlaceSection {}
    }
}
