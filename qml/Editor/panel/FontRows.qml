// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The rows of a font property: face, size, weight and slant.
Column {
    id: root

    /// Name of the font property, dotted for groups.
    property string name: "font"
    readonly property Item form: parent.form

    width: parent.width
    spacing: parent.spacing

    ChoiceRow {
        name: root.name + ".family"
        label: qsTr("Font")
        box.familyRole: "is"
        choices: root.form.families.map(family => ({ text: family, is: family }))
    }

    NumberRow {
        name: root.name + ".pixelSize"
        label: qsTr("Size")
        from: 1
        to: 2000
        suffix: " px"
    }

    PanelRow {
        label: qsTr("Style")

        Row {
            readonly property Item form: root.form
            spacing: 2 * BGUI.Theme.unit

            CheckRow {
                name: root.name + ".bold"
                label: qsTr("Bold")
            }

            CheckRow {
                name: root.name + ".italic"
                label: qsTr("Italic")
            }
        }
    }
}
