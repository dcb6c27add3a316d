// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Layouts 1.15
import "private"
import "private/clock"
import "private/clock/calendar.js" as Calendar
import "private/presence.js" as Presence

/// The calendar of the current month, in the words and with the first day of week of its language. At midnight it moves
/// on.
ColumnLayout {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicCalendar {
    width: 480
    height: 440
    dayColor: 'white'
    weekdayColor: '#f2b04a'
    backColor: '#17212b'
}"

    property color dayColor: "white"
    property color weekdayColor: "#f2b04a"
    property color titleColor: "white"
    property color todayColor: "#1d2630"
    /// Ground of today, and of the whole calendar.
    property color markColor: "#f2b04a"
    property color backColor: "#17212b"
    property alias dayFont: dayStyle.font
    property alias weekdayFont: weekdayStyle.font
    property alias titleFont: titleStyle.font
    /// Language and country, as "de_DE"; empty for the system's.
    property string localeName: ""

    readonly property var language: Qt.locale(localeName)
    /// Today, set by the clock.
    property date today: ticker.time
    readonly property var days: Calendar.month(today.getFullYear(), today.getMonth(), language.firstDayOfWeek)

    width: 480
    height: 440
    Component.onCompleted: editor = Qt.createComponent("BasicCalendarEditor.qml")

    Ticker {
        id: ticker
        period: 60000
        running: root.visible && Presence.presenceOf(root) === Presence.shown
    }

    // They only hold the fonts, so that a document can set one part of a font and keep the others.
    TextMetrics {
        id: dayStyle
        font.family: "Open Sans"
        font.pixelSize: 24
    }

    TextMetrics {
        id: weekdayStyle
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 20
    }

    TextMetrics {
        id: titleStyle
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 34
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        radius: 12
        color: root.backColor

        CalendarPage {
            anchors.fill: parent
            anchors.margins: Math.min(24, parent.height / 16, parent.width / 16)
            calendar: root
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "BasicCalendar"
        }
    }
}
