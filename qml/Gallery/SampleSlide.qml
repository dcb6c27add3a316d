// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0

/// A slide of one colour that says what it is.
Slide {
    id: root

    property string text

    duration: 3000

    BasicRectangle {
        width: 960
        height: 540
        color: root.tagColor
    }

    BasicText {
        width: 960
        height: 540
        text: root.text
        color: "white"
        font.family: "Open Sans"
        font.pixelSize: 72
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
