// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files
import "values.js" as Values

/// A list of objects: to add, take away, order and fill in. A list that the document works out is left alone.
PanelRow {
    id: root

    /// The members of an entry: a list of maps with "name", "label", "kind" ("text", "number" or one of files.js) and
    /// "hint". The first one names the entry in the list.
    property var fields: []
    /// The member that an entry which is a plain text stands for.
    property string main: "name"
    readonly property bool isPlain: Array.isArray(entries) && Values.isPlain(form.revision > 0 ? form.source(name) : "")
    // The list as it is, with objects throughout.
    readonly property var entries: Array.isArray(value) ? value.map(asObject) : null
    /// The entry that is open, -1 for none.
    property int open: -1

    function asObject(entry) {
        const isText = typeof entry !== "object" || entry === null;
        return isText ? { [root.main]: String(entry) } : Object.assign({}, entry);
    }

    function put(list) {
        root.form.commit(root.name, Values.list(list, root.form.indentation(root.name)));
    }

    function add() {
        const last = root.entries.length;
        put(root.entries.concat({ [root.fields[0].name]: qsTr("New entry") }));
        root.open = last;
    }

    function remove(index) {
        const files = root.fields.filter(field => field.kind in Files.filters)
                                   .map(field => root.entries[index][field.name]);
        root.open = -1;
        put(root.entries.filter((entry, i) => i !== index));
        files.forEach(file => Files.letGo(String(file || "")));
    }

    function move(index, by) {
        const list = root.entries.slice();
        list.splice(index + by, 0, list.splice(index, 1)[0]);
        root.open = root.open === index ? index + by : -1;
        put(list);
    }

    function setField(index, field, text) {
        const list = root.entries.slice();
        const isNumber = field.kind === "number" && text.trim() !== "" && isFinite(text);
        list[index][field.name] = isNumber ? Number(text) : text;
        put(list);
    }

    minds: false
    labelWidth: width

    Column {
        width: parent.width
        spacing: BGUI.Theme.unit

        Repeater {
            model: root.isPlain ? root.entries.length : 0

            EntryCard {
                width: parent.width
                row: root
                place: index
            }
        }

        BGUI.Label {
            width: parent.width
            visible: !root.isPlain
            size: root.size
            muted: true
            text: qsTr("The document works this list out by itself.")
        }

        BGUI.Button {
            objectName: "add"
            visible: root.isPlain
            size: root.size
            faIcon: "fa-plus"
            text: qsTr("Add")
            onClicked: root.add()
        }
    }
}
