// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Every icon; the mouse over one tells its name, the field finds names.
Card {
    id: root

    readonly property var names: Object.keys(faIcons).filter(name => name.startsWith("fa-"))
    property string pointed

    title: qsTr("Icons")

    FormRow {
        label: root.pointed || qsTr("%1 icons").arg(root.names.length)

        Input {
            id: search
            width: parent.width
            faIcon: "fa-search"
            placeholderText: qsTr("Part of a name")
            clearable: true
        }
    }

    Flow {
        width: parent.width

        Repeater {
            model: root.names.filter(name => name.includes(search.text.toLowerCase()))

            FontAwesomeIcon {
                width: 3.5 * Theme.unit
                height: 3.5 * Theme.unit
                faIcon: modelData
                size: "large"
                color: hover.hovered ? Theme.accent : Theme.ink

                HoverHandler {
                    id: hover
                    onHoveredChanged: root.pointed = hovered ? modelData : ""
                }
            }
        }
    }
}
