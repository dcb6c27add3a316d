// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files
import "values.js" as Values

/// A list of objects: to add, take away, order and fill in, one by one here or all in a table. A list that the document
/// works out is left alone.
PanelRow {
    id: root

    /// The members of an entry: a list of maps with "name", "label", "kind" ("text", "number" or one of files.js) and
    /// "hint", and "share", how wide its column is beside the others' 2. The first one names the entry in the list.
    property var fields: []
    /// The member that an entry which is a plain text stands for.
    property string main: "name"
    readonly property bool isPlain: Array.isArray(value) && Values.isPlain(written)
    // The list as it is, with objects throughout, and as it is written; undefined where an entry is not written.
    readonly property var listed: isPlain && written !== "" ? Values.read(written) : value
    readonly property var entries: Array.isArray(listed) ? listed.map(asObject) : null
    readonly property var texts: isPlain && written !== "" ? Values.entryTexts(written) : []
    /// The entry that is open, -1 for none.
    property int open: -1

    function asObject(entry) {
        const isText = typeof entry !== "object" || entry === null;
        return isText ? { [root.main]: String(entry) } : Object.assign({}, entry);
    }

    function put(list, texts) {
        root.form.commit(root.name, Values.list(list, root.form.indentation(root.name), texts, root.written));
    }

    function append() {
        put(root.entries.concat({ [root.fields[0].name]: qsTr("New entry") }), root.texts);
    }

    function add() {
        const last = root.entries.length;
        append();
        root.open = last;
    }

    function openTable() {
        table.active = true;
        table.item.open();
    }

    function remove(index) {
        const files = root.fields.filter(field => field.kind in Files.filters)
                                   .map(field => root.entries[index][field.name]);
        root.open = -1;
        put(root.entries.filter((entry, i) => i !== index), root.texts.filter((text, i) => i !== index));
        files.forEach(file => Files.letGo(String(file || "")));
    }

    function move(index, by) {
        const order = root.entries.map((entry, i) => i);
        order.splice(index + by, 0, order.splice(index, 1)[0]);
        root.open = root.open === index ? index + by : -1;
        put(order.map(i => root.entries[i]), order.map(i => root.texts[i]));
    }

    function setField(index, field, text) {
        const list = root.entries.slice();
        const isNumber = field.kind === "number" && text.trim() !== "" && isFinite(text);
        list[index] = Object.assign({}, list[index], { [field.name]: isNumber ? Number(text) : text });
        put(list, root.texts.map((text, i) => i === index ? undefined : text));
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

        Row {
            visible: root.isPlain
            spacing: BGUI.Theme.unit

            BGUI.Button {
                objectName: "add"
                size: root.size
                faIcon: "fa-plus"
                text: qsTr("Add")
                onClicked: root.add()
            }

            BGUI.Button {
                objectName: "table"
                size: root.size
                faIcon: "fa-table"
                text: qsTr("All in a table")
                onClicked: root.openTable()
            }
        }
    }

    Loader {
        id: table
        active: false
        sourceComponent: EntriesTable {
            row: root
        }
    }
}
