// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The page of a BasicCalendar: month and year, the weekdays' names, the days.
Item {
    id: root

    /// The BasicCalendar.
    property Item calendar
    readonly property real column: width / 7
    readonly property real line: Math.max(0, height - title.height) / (1 + calendar.days.length / 7)

    Text {
        id: title
        width: parent.width
        height: text === "" ? 0 : implicitHeight + 10
        // The month on its own: beside a day some languages write it in another form.
        text: root.calendar.language.standaloneMonthName(root.calendar.today.getMonth()) + " " + root.calendar.today.getFullYear()
        color: root.calendar.titleColor
        font: root.calendar.titleFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        leftPadding: root.column * 0.2
    }

    Repeater {
        model: 7

        CalendarCell {
            x: index * root.column
            y: title.height
            width: root.column
            height: root.line
            text: root.calendar.language.standaloneDayName((root.calendar.language.firstDayOfWeek + index) % 7, Locale.ShortFormat)
            color: root.calendar.weekdayColor
            font: root.calendar.weekdayFont
        }
    }

    Repeater {
        model: root.calendar.days

        CalendarCell {
            x: index % 7 * root.column
            y: title.height + (1 + Math.floor(index / 7)) * root.line
            width: root.column
            height: root.line
            text: modelData.date
            isMarked: modelData.isInMonth && modelData.date === root.calendar.today.getDate()
            markColor: root.calendar.markColor
            color: isMarked ? root.calendar.todayColor : root.calendar.dayColor
            font: root.calendar.dayFont
            opacity: modelData.isInMonth ? 1 : 0.35
        }
    }
}
