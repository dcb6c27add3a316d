// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// A box to tick, with its text. Space and Enter change it.
T.CheckBox {
    id: root

    property string size: "base"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight(size)
    padding: 0
    spacing: Theme.unit
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    Accessible.name: text

    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    indicator: Mark {
        control: root
        radius: Theme.radius("small")
        glyph: root.checkState === Qt.PartiallyChecked ? "fa-minus" : "fa-check"
        isSet: root.checkState !== Qt.Unchecked
    }

    contentItem: MarkText {
        control: root
    }

    TouchReach {
        control: root
    }
}
