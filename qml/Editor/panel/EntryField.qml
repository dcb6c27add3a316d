// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files

/// One member of an entry: a text, a number or a file.
BGUI.FormRow {
    id: root

    /// The EntryCard, and the member as EntriesRow describes it.
    property Item card
    property var field
    readonly property bool isFile: field.kind in Files.filters
    readonly property string text: card.entry[field.name] === undefined ? "" : String(card.entry[field.name])

    function put(text) {
        const old = root.text;
        if (text === old)
            return;
        root.card.row.setField(root.card.place, root.field, text);
        if (root.isFile)
            Files.letGo(old);
    }

    size: card.row.size
    label: field.label
    labelWidth: 11 * BGUI.Theme.unit
    controlWidth: isFile ? loader.implicitWidth : 24 * BGUI.Theme.unit

    Loader {
        id: loader
        width: parent.width
        sourceComponent: root.isFile ? fileField : textField
    }

    Component {
        id: textField

        BGUI.Input {
            id: input
            size: root.size
            text: root.text
            placeholderText: root.field.hint || ""
            Accessible.name: root.label
            onEditingFinished: root.put(text)
            Component.onDestruction: root.put(text)

            Connections {
                target: root
                function onTextChanged() {
                    input.text = root.text;
                }
            }
        }
    }

    Component {
        id: fileField

        FileField {
            size: root.size
            kind: root.field.kind
            path: root.text
            label: root.label
            onWanted: root.card.row.form.pickFile(root.field.kind, root.put)
            onCleared: root.put("")
        }
    }
}
