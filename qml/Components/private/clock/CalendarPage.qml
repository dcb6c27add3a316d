// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../fonts.js" as Fonts

/// The page of a BasicCalendar: month and year, the weekdays' names, the days. All letters shrink alike where the cells
/// are too small for them.
Item {
    id: root

    /// The BasicCalendar.
    property Item calendar
    readonly property real column: width / 7
    readonly property real line: Math.max(0, height - title.height) / (1 + calendar.days.length / 7)

    function fitted(font, share) {
        return Fonts.sized(font, Math.min(font.pixelSize, root.column * share, root.line * 0.75));
    }

    Text {
        id: title
        width: parent.width
        height: text === "" ? 0 : implicitHeight * 1.15
        // The month on its own: beside a day some languages write it in another form.
        text: root.calendar.language.standaloneMonthName(root.calendar.today.getMonth()) + " "
              + root.calendar.today.getFullYear()
        color: root.calendar.titleColor
        font: Fonts.sized(root.calendar.titleFont, Math.min(root.calendar.titleFont.pixelSize, root.height * 0.13))
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Math.min(8, font.pixelSize)
        leftPadding: root.column * 0.2
    }

    Repeater {
        model: 7

        CalendarCell {
            x: index * root.column
            y: title.height
            width: root.column
            height: root.line
            text: root.calendar.language.standaloneDayName(
                      (root.calendar.language.firstDayOfWeek + index) % 7, Locale.ShortFormat)
            color: root.calendar.weekdayColor
            font: root.fitted(root.calendar.weekdayFont, 0.36)
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
            font: root.fitted(root.calendar.dayFont, 0.5)
            opacity: modelData.isInMonth ? 1 : 0.35
        }
    }
}
