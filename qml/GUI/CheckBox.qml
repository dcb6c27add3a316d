// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."
import "private"
import "private/press.js" as Press

// A box to tick, with its text. Space and Enter change it.
T.CheckBox {
    id: control

    property string size: "base"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight(size)
    padding: 0
    spacing: Theme.unit
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    Accessible.name: text

    Keys.onReturnPressed: Press.press(control, event)
    Keys.onEnterPressed: Press.press(control, event)

    indicator: Mark {
        control: control
        radius: Theme.radius("small")
        glyph: control.checkState === Qt.PartiallyChecked ? "fa-minus" : "fa-check"
        isSet: control.checkState !== Qt.Unchecked
    }

    contentItem: MarkText {
        control: control
    }

    TouchReach {
        control: control
    }
}
