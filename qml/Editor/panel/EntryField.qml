// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One member of an entry with its label.
BGUI.FormRow {
    id: root

    /// The EntryCard, and the member as EntriesRow describes it.
    property Item card
    property var field

    size: card.row.size
    label: field.label
    labelWidth: 11 * BGUI.Theme.unit
    controlWidth: control.isFile ? control.implicitWidth : 24 * BGUI.Theme.unit

    EntryValue {
        id: control
        width: parent.width
        row: root.card.row
        place: root.card.place
        field: root.field
    }
}
