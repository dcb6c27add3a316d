// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files

/// The control for one member of an entry: a text, a number or a file.
Loader {
    id: root

    /// The EntriesRow, the entry's place in it, and the member as the row describes it.
    property Item row
    property int place: 0
    property var field
    readonly property bool isFile: field.kind in Files.filters
    readonly property var entry: row.entries && row.entries[place] || ({})
    readonly property string text: entry[field.name] === undefined ? "" : String(entry[field.name])

    /// Enter was pressed in the text.
    signal accepted()

    function put(text) {
        const old = root.text;
        if (text === old)
            return;
        root.row.setField(root.place, root.field, text);
        if (root.isFile)
            Files.letGo(old);
    }

    sourceComponent: root.isFile ? fileField : textField

    Component {
        id: textField

        BGUI.Input {
            id: input
            objectName: "%1 %2".arg(root.field.name).arg(root.place + 1)
            focus: true
            size: root.row.size
            text: root.text
            placeholderText: root.field.hint || ""
            Accessible.name: root.field.label
            onEditingFinished: root.put(text)
            onAccepted: root.accepted()
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
            size: root.row.size
            kind: root.field.kind
            path: root.text
            label: root.field.label
            onWanted: root.row.form.pickFile(root.field.kind, root.put)
            onCleared: root.put("")
        }
    }
}
