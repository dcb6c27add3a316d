// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.Editor 1.0
import "../components"

/// A test case with a document open for editing, as an editor page opens it, and the panel of its selected item.
ComponentCase {
    id: test

    readonly property var withoutPanel: ["BasicRow", "BasicColumn", "BasicGrid", "BasicEdit", "GlowText"]
    property Item document: null
    property Item panel: null
    /// The items that were selected anew since selectionsTaken().
    property var selections: []

    width: 420
    height: 700

    readonly property SignalSpy states: SignalSpy {
        target: CAPI
        signalName: "newerEditingState"
    }

    // Opens a document with `body` inside its root object.
    function open(body, imports) {
        const source = pasteImports + (imports || "")
            + "\nRectangle {\n    width: 640\n    height: 480\n" + body.split("\n").map(line => "    " + line).join("\n") + "\n}\n";
        CAPI.writeToFile(source, "main.qml");
        CAPI.readSourceCode("main.qml");
        Ejs.JCAPI = CAPI;
        Ejs.dirmap = CAPI.dirmap();
        Ejs.selectItem = item => { test.selections = test.selections.concat([item]); };
        document = createTemporaryQmlObject(CAPI.generateEditor(), test, String(fixture.url("document.qml")));
        Ejs.map = CAPI.getMap();
        document.z = -1;
    }

    // Selects the item `number` and shows its panel.
    function select(number, properties) {
        Ejs.element = number;
        Ejs.elementObj = Ejs.childrenByElement(document, number);
        const editor = Ejs.elementObj.editor;
        compare(editor.status, Component.Ready, editor.errorString());
        panel = createTemporaryObject(editor, test, Object.assign({ radEditor: true, width: 360 }, properties));
        panel.height = Qt.binding(() => panel.implicitHeight);
        waitForRendering(panel);
        Ejs.propertyEdited = false;
        Ejs.codeEdited = false;
        takeChanges();
    }

    // Test data: every component that has a panel.
    function panelRows() {
        return fixture.components().map(file => ({ tag: file.replace(".qml", "") }))
                                   .filter(row => withoutPanel.indexOf(row.tag) < 0);
    }

    // Opens a document with a fresh `kind` and shows its panel.
    function openComponent(kind) {
        // One component is not in the module file.
        open(CAPI.getItemPrototype(":/Nuvex/Components/" + kind + ".qml"), "import \"qrc:/Nuvex/Components\"\n");
        select(0);
    }

    // The number of completed changes and of renewed selections since the last call.
    function takeChanges() {
        const taken = [states.count, selections.length];
        states.clear();
        selections = [];
        return taken;
    }

    // Everything below `item` for which `wanted` holds.
    function all(item, wanted) {
        return Array.prototype.reduce.call(item.children, (found, child) =>
            found.concat(wanted(child) ? [child] : [], all(child, wanted)), []);
    }

    function openSections() {
        all(panel, item => item.isOpen === false && item.title !== undefined).forEach(section => { section.isOpen = true; });
        waitForRendering(panel);
    }

    // The source text of the map must be what a fresh parse of the source finds.
    function verifyMap() {
        const fresh = CAPI.parseAndGetMap(CAPI.editedSourceCode());
        verify(fresh.length > 0, CAPI.editedSourceCode());
        verify(qtest_compareInternal(Ejs.map, fresh), CAPI.editedSourceCode() + JSON.stringify(Ejs.map));
    }

    // The value of `name` on the item with that number in a document made anew from the source.
    function valueAfterReload(number, names) {
        const fresh = createTemporaryQmlObject(CAPI.generateEditor(), test, String(fixture.url("reloaded.qml")));
        const item = Ejs.childrenByElement(fresh, number);
        const read = name => name.split(".").reduce((at, part) => at[part], item);
        const values = names.map(name => asText(read(name)));
        fresh.destroy();
        return values;
    }

    function asText(value) {
        return Array.isArray(value) ? JSON.stringify(value) : String(value);
    }
}
