// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import ".."
import "press.js" as Press

/// A colour of a palette, to click.
T.AbstractButton {
    id: root

    property string size: "base"
    property color sample
    property bool selected: false

    objectName: "colour " + sample
    implicitWidth: 2.75 * Theme.unit
    implicitHeight: implicitWidth
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: String(sample)

    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    background: Swatch {
        sample: root.sample
        scale: root.hovered && !root.down ? 1.12 : 1

        FontAwesomeIcon {
            anchors.centerIn: parent
            visible: root.selected
            faIcon: "fa-check"
            size: "small"
            color: root.sample.hslLightness > 0.55 ? Theme.strongInk : Theme.surface
        }

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
        }
    }
}
