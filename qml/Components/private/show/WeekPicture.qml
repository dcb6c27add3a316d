// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "schedule.js" as Rules
import "week.js" as Week

/// This week of a schedule, in a panel: a column a day, in it what is on, in the colours of the slides.
Item {
    id: root

    /// The Schedule's entries, and its slides.
    property var schedules: []
    property var slides: []

    readonly property var rules: schedules.map(schedule => Rules.parsed(schedule))
    readonly property int faulty: rules.indexOf(null)
    readonly property var days: Week.days(new Date())
    readonly property real hoursWidth: 3 * BGUI.Theme.unit

    /// The entry was pressed.
    signal chosen(int entry)

    function colorOf(entry) {
        const rule = rules[entry];
        const name = rule ? rule.slides[0] : undefined;
        const slide = typeof name === "number" ? slides[name] : slides.find(slide => slide.objectName === name);
        return slide ? slide.tagColor : BGUI.Theme.accent;
    }

    width: parent ? parent.width : implicitWidth
    implicitWidth: 40 * BGUI.Theme.unit
    height: fault.visible ? fault.y + fault.height : grid.y + grid.height

    Repeater {
        model: [0, 6, 12, 18, 24]

        BGUI.Label {
            y: grid.y + modelData / 24 * grid.height - height / 2
            width: root.hoursWidth - BGUI.Theme.unit / 2
            size: "xsmall"
            muted: true
            text: modelData
            horizontalAlignment: Text.AlignRight
        }
    }

    Row {
        id: grid
        x: root.hoursWidth
        y: 3 * BGUI.Theme.unit
        width: parent.width - x
        height: 24 * BGUI.Theme.unit
        spacing: dp

        Repeater {
            model: root.days

            Rectangle {
                id: column
                readonly property date day: modelData

                width: (grid.width - 6 * grid.spacing) / 7
                height: grid.height
                color: BGUI.Theme.sunken

                BGUI.Label {
                    y: -height - BGUI.Theme.unit / 2
                    width: parent.width
                    size: "xsmall"
                    muted: true
                    text: Qt.locale().dayName(column.day.getDay(), Locale.ShortFormat)
                    horizontalAlignment: Text.AlignHCenter
                }

                Repeater {
                    model: Week.stretches(root.rules, column.day).filter(stretch => stretch.entry >= 0)

                    Rectangle {
                        readonly property string name: root.schedules[modelData.entry].name
                                                       || qsTr("Entry %1").arg(modelData.entry + 1)

                        objectName: "stretch"
                        y: modelData.begin * column.height
                        width: column.width
                        height: (modelData.end - modelData.begin) * column.height
                        color: root.colorOf(modelData.entry)
                        border.width: area.containsMouse ? 2 * dp : 0
                        border.color: BGUI.Theme.strongInk

                        BGUI.Label {
                            width: parent.width
                            visible: height < parent.height
                            padding: 3 * dp
                            size: "xsmall"
                            color: parent.color.hslLightness > 0.55 ? BGUI.Theme.strongInk : BGUI.Theme.surface
                            text: parent.name
                            textFormat: Text.PlainText
                            wrapMode: Text.NoWrap
                            elide: Text.ElideRight
                        }

                        MouseArea {
                            id: area
                            anchors.fill: parent
                            hoverEnabled: true
                            onClicked: root.chosen(modelData.entry)
                        }

                        BGUI.ToolTip {
                            visible: area.containsMouse
                            text: parent.name
                        }
                    }
                }
            }
        }
    }

    BGUI.Notice {
        id: fault
        y: grid.y + grid.height + BGUI.Theme.unit
        width: parent.width
        type: "warning"
        text: root.faulty < 0 ? "" : qsTr("Entry %1 cannot be understood, and is never on.").arg(root.faulty + 1)
    }
}
