// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI
import "files.js" as Files

/// The form of an editor panel: rows declared inside, each for one property of the selected item. Here stand the steps
/// that every change takes: applied to the live item, written into the source, recorded as a state.
///
/// The form stays with the item that was selected when it was made. A change that comes late, as when a field loses the
/// keyboard to another item, still goes to that item; when the item is deleted or the document made anew, nowhere.
FocusScope {
    id: root

    /// The panel, with its `radEditor` and `size`.
    property Item panel
    default property alias rows: column.data

    readonly property bool radEditor: panel.radEditor
    readonly property string size: radEditor ? "base" : "large"
    property QtObject item: null
    property int element: -1
    // The item's record: another one at its place belongs to another document, and an empty one to a deleted item.
    property var record: null
    /// Counts the changes, so that what is read from the source follows them.
    property int revision: 0
    /// What went wrong with the last change, in words.
    property alias problem: notice.text
    /// The faces that can be chosen, in order.
    readonly property var families: CAPI.getFonts(false).filter((family, i, all) => family !== "FontAwesome"
                                                                && all.indexOf(family) === i).sort()
    readonly property real margin: 2 * BGUI.Theme.unit
    /// Gives the live item's property a value, as source text; it throws or returns false where the item does not take
    /// it. For items that cannot evaluate for themselves there is another one.
    property var assign: (name, text) => root.item.evaluate(name + " = " + text)

    /// Source text of the property, without the semicolon that may end it, its lines ended by "\n"; "" when the item
    /// does not set it.
    function source(name) {
        const property = isThere() ? root.record.properties[name] : undefined;
        return property ? property.value.replace(/\r\n?/g, "\n").replace(/\s*;$/, "") : "";
    }

    /// Current value of the live item's property; a dotted name goes into groups.
    function value(name) {
        return name.split(".").reduce((at, part) => at === undefined || at === null ? undefined : at[part], root.item);
    }

    /// Shows a change on the live item alone, as while a slider moves. False when the item does not take it.
    function preview(name, text) {
        if (!root.item)
            return false;
        try {
            return root.assign(name, text) !== false;
        } catch (refusal) {
            console.warn(log, "the item does not take", name, "=", text, "-", refusal);
            return false;
        }
    }

    /// One completed change: the property gets the source text `text`. False when nothing was changed.
    function commit(name, text) {
        return commitAll([{ name: name, text: text }]);
    }

    /// The same for several properties at once: a list of maps with "name" and "text", and "isHandler" for code that
    /// runs at its time, not now.
    function commitAll(changes) {
        const news = changes.filter(change => source(change.name) !== change.text);
        root.problem = "";
        if (!isThere() || news.length === 0)
            return false;
        const values = news.map(change => ({ element: root.element, name: change.name, text: change.text }));
        const isShown = () => news.every(change => change.isHandler || preview(change.name, change.text));
        const isDone = Ejs.updateProperties(values, isShown);
        root.problem = Ejs.problem;
        if (isDone)
            finish();
        else
            news.filter(change => !change.isHandler && source(change.name) !== "").forEach(showSource);
        return isDone;
    }

    // Shows what the source says, as after a change that was refused.
    function showSource(change) {
        preview(change.name, source(change.name));
    }

    function isThere() {
        return root.item !== null && root.record && Ejs.map[root.element] === root.record
            && root.record.plast > root.record.pfirst;
    }

    function finish() {
        Ejs.propertyEdited = true;
        Ejs.codeEdited = true;
        CAPI.saveEditingState();
        if (root.radEditor)
            Ejs.selectItem(Ejs.elementObj);
    }

    /// What stands before the property, or its place in the item, on its line, as blanks.
    function indentation(name) {
        const property = root.record.properties[name];
        const first = property ? property.pfirst : root.record.pfirst;
        const line = CAPI.sourceCode(CAPI.prevPosInSourceCode("\n", first) + 1, first);
        return /^\s*/.exec(line)[0] + (property ? "" : "    ");
    }

    /// Lets the user choose a file of `kind`, of files.js, and copies it into the project; `chosen` gets its path
    /// there.
    function pickFile(kind, chosen) {
        picker.kind = kind;
        picker.chosen = chosen;
        picker.active = true;
        picker.item.open();
    }

    implicitWidth: 40 * BGUI.Theme.unit
    implicitHeight: column.height + 2 * margin
    Component.onCompleted: {
        root.item = Ejs.elementObj;
        root.element = Ejs.element;
        root.record = Ejs.map[root.element];
        ++root.revision;
    }

    // What is changed elsewhere, as by dragging, shows here as well.
    Connections {
        target: CAPI

        function onNewerEditingState() {
            ++root.revision;
        }
    }

    LoggingCategory {
        id: log
        name: "nuvex.components"
    }

    BGUI.ScrollPane {
        anchors.fill: parent
        contentHeight: root.implicitHeight
        clip: interactive

        Column {
            id: column
            readonly property Item form: root

            x: root.margin
            y: root.margin
            width: root.width - 2 * root.margin
            spacing: 1.5 * BGUI.Theme.unit

            BGUI.Notice {
                id: notice
                type: "danger"
                size: root.size
                closable: true
            }
        }
    }

    Loader {
        id: picker
        property string kind
        property var chosen
        active: false
        sourceComponent: FilePicker {
            size: root.size
            nameFilters: Files.filters[picker.kind]
            onPicked: {
                const path = Files.bringIn(file);
                root.problem = path === "" ? qsTr("The file could not be copied into the project.") : "";
                if (path !== "")
                    picker.chosen(path);
            }
        }
    }
}
