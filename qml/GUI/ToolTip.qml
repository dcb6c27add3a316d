// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// A short text beside its parent, kept inside the window.
T.ToolTip {
    id: root

    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? parent.height + Theme.unit / 2 : 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.unit
    verticalPadding: Theme.unit / 2
    horizontalPadding: Theme.unit
    delay: 600
    // The Escape key goes back at once, whatever hint is shown.
    closePolicy: T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        color: Theme.barInk
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSize("small")
    }

    background: Rectangle {
        radius: Theme.radius("base")
        color: Theme.bar
    }
}
