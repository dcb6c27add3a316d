// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0
import "private/show"

/// The panel of Schedule: when its slides are on, as a picture and as a list, and how they turn.
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

        WeekPicture {
            schedules: Array.isArray(entries.value) ? entries.value : []
            slides: form.item && form.item.slides || []
            onChosen: entries.open = entry
        }
        EntriesRow {
            id: entries
            name: "schedules"
            label: qsTr("Schedules")
            fields: [
                { name: "name", label: qsTr("Name"), kind: "text" },
                { name: "slide", label: qsTr("Slide"), kind: "number",
                  hint: qsTr("0 is the first one, or its objectName") },
                { name: "begin", label: qsTr("From"), kind: "text", hint: "06:00" },
                { name: "end", label: qsTr("To"), kind: "text", hint: "11:00" },
                { name: "days", label: qsTr("Days"), kind: "text", hint: "mon-fri, sun" },
                { name: "from", label: qsTr("First day"), kind: "text", hint: "2026-12-24" },
                { name: "until", label: qsTr("Last day"), kind: "text", hint: "12-31" },
                { name: "priority", label: qsTr("Priority"), kind: "number",
                  hint: "0" }
            ]
        }
        Section {
            title: qsTr("Slides")

            ShowRows {}
        }
        PlateSection {}
        PlaceSection {}
    }
}
