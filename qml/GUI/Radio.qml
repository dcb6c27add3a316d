// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// One choice of several: radios with the same parent, or of one RadioGroup, switch each other off.
/// Space and Enter choose it.
T.RadioButton {
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
        radius: width / 2
        glyph: "fa-circle"
        glyphScale: 0.5
        isSet: root.checked
    }

    contentItem: MarkText {
        control: root
    }

    TouchReach {
        control: root
    }
}
