// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A text of a ForecastDay: as wide as its column, smaller where it would not fit.
Text {
    id: root

    /// The ForecastDay.
    property Item day
    property real room: 100

    width: room
    textFormat: Text.PlainText
    horizontalAlignment: day.isRow ? Text.AlignLeft : Text.AlignHCenter
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 6
    color: day.color
    font.family: "Open Sans"
    font.pixelSize: day.fontSize
}
