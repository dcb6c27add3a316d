// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.Editor 1.0
import "qrc:/Nuvex/Editor/panel/values.js" as Values

// What panels promise beyond a plain change: where late changes go, what happens to groups, files and lists, and what is
// refused.
PanelCase {
    id: test
    name: "PanelContract"

    readonly property var form: panel ? all(panel, item => item.commitAll !== undefined)[0] : null

    function row(name) {
        return all(panel, item => item.name === name && item.form !== undefined)[0];
    }

    function typeInto(input, text) {
        mouseClick(input);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        text.split("").forEach(letter => keyClick(letter));
    }

    Item {
        id: elsewhere
    }

    // On a device nothing is selected anew, and the controls are larger.
    function test_device() {
        open("BasicRectangle { width: 100; height: 50; color: 'red' }");
        select(0, { radEditor: false });
        compare(panel.size, "large");
        form.commit("radius", "3");
        compare(takeChanges(), [1, 0]);
        verify(Ejs.propertyEdited && Ejs.codeEdited);
        select(0);
        compare(panel.size, "base");
    }

    // The selection moves on while a field still has the keyboard: what was typed stays with its item.
    function test_lateChange() {
        open("MenuItem1 { name: 'one'; width: 200; height: 200 }\nMenuItem1 { name: 'two'; width: 200; height: 200 }");
        select(0);
        typeInto(row("name").input, "uno");
        Ejs.element = 1;
        Ejs.elementObj = Ejs.childrenByElement(document, 1);
        elsewhere.forceActiveFocus();
        compare(takeChanges(), [1, 1]);
        compare(Ejs.map[0].properties.name.value, "\"uno\"");
        compare(Ejs.map[1].properties.name.value, "'two';");
        compare(Ejs.childrenByElement(document, 1).name, "two");
        compare(Ejs.element, 1);
        verifyMap();
    }

    // The panel goes away while a field still has the keyboard.
    function test_panelCloses() {
        open("MenuItem1 { name: 'one'; width: 200; height: 200 }");
        select(0);
        typeInto(row("name").input, "uno");
        panel.destroy();
        tryVerify(() => Ejs.map[0].properties.name.value === "\"uno\"");
        compare(takeChanges()[0], 1);
    }

    // The item is deleted, or the document made anew, while a field still has the keyboard: what was typed goes nowhere.
    function test_itemIsGone_data() {
        return [
            { tag: "deleted", take: () => Ejs.removeElement() },
            { tag: "made anew", take: () => { Ejs.map = CAPI.parseAndGetMap(CAPI.editedSourceCode()); } }
        ];
    }
    function test_itemIsGone(data) {
        open("MenuItem1 { name: 'one'; width: 200; height: 200 }\nMenuItem1 { name: 'two'; width: 200; height: 200 }");
        select(0);
        typeInto(row("name").input, "u");
        data.take();
        const after = CAPI.editedSourceCode();
        Ejs.elementObj.destroy();
        wait(50);
        elsewhere.forceActiveFocus();
        panel.destroy();
        wait(50);
        compare(CAPI.editedSourceCode(), after);
        compare(takeChanges()[0], 0);
    }

    function test_escapeTakesBack() {
        open("MenuItem1 { name: 'one'; width: 200; height: 200 }");
        select(0);
        typeInto(row("name").input, "uno");
        compare(Ejs.elementObj.name, "uno");
        keyClick(Qt.Key_Escape);
        compare(Ejs.elementObj.name, "one");
        compare(row("name").input.text, "one");
        elsewhere.forceActiveFocus();
        compare(takeChanges()[0], 0);
    }

    // Keys that step a number are one change together; the item follows each.
    function test_stepsAreOneChange() {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        row("radius").box.forceActiveFocus();
        for (let i = 1; i <= 3; ++i) {
            keyClick(Qt.Key_Up);
            compare(Ejs.elementObj.radius, 4 + i);
        }
        compare(takeChanges()[0], 0);
        tryCompare(test.states, "count", 1);
        compare(Ejs.map[0].properties.radius.value, "7");
        wait(700);
        compare(takeChanges()[0], 1);
    }

    // The panel follows what happens to the item elsewhere, as when it is dragged.
    function test_panelFollows() {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        openSections();
        Ejs.elementObj.x = 33;
        compare(row("x").box.realValue, 33);
        Ejs.elementObj.color = "#00ff00";
        verify(Qt.colorEqual(row("color").button.color, "#00ff00"));
        compare(takeChanges()[0], 0);
    }

    function test_sameValueIsNoChange() {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        verify(!form.commit("radius", "4"));
        compare(takeChanges(), [0, 0]);
    }

    // Several properties in one change are one state.
    function test_severalAtOnce() {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        verify(form.commitAll([{ name: "radius", text: "5" }, { name: "border.width", text: "2" }]));
        compare(takeChanges(), [1, 1]);
        compare([Ejs.elementObj.radius, Ejs.elementObj.border.width], [5, 2]);
        verifyMap();
    }

    // What the live item or the source refuses is not written, said, and nothing of the change stays on the live item.
    function test_refused_data() {
        return [
            { tag: "by the item", text: "nosuchname", warnings: 1 },
            { tag: "no value", text: "no such thing", warnings: 0 },
            { tag: "more than one", text: "5; color: 'red'", warnings: 0 },
            { tag: "nothing", text: "", warnings: 0 }
        ];
    }
    function test_refused(data) {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        const before = CAPI.editedSourceCode();
        verify(!form.commitAll([{ name: "width", text: "120" }, { name: "radius", text: data.text }]));
        waitForRendering(panel);
        verify(all(panel, item => item.text === form.problem && item.visible && item.height > 0).length > 0, form.problem);
        compare([Ejs.elementObj.width, Ejs.elementObj.radius], [100, 4]);
        compare(CAPI.editedSourceCode(), before);
        compare(takeChanges(), [0, 0]);
        expectWarnings(data.warnings, /does not take radius/);
        verify(form.commit("radius", "5"));
        compare(form.problem, "");
    }

    function test_texts_data() {
        return ["\"quoted\"", "it's", "back\\slash \\n", "two\nlines", "tab\t", "\u2028line\u2029", "// no comment", "}{",
                "ünïcödé 日本 😀", "</script>", "%1 $& $1", ""].map(text => ({ tag: JSON.stringify(text), text: text }));
    }
    function test_texts(data) {
        open("MenuItem1 { name: 'one'; width: 200; height: 200 }");
        select(0);
        form.commit("name", Values.quoted(data.text));
        compare(Ejs.elementObj.name, data.text);
        compare(valueAfterReload(0, ["name"]), [data.text]);
        compare(Values.textIn(Ejs.getProperty("name")), data.text);
        verifyMap();
    }

    // Code that cannot be read stays in its field; what can is written, several statements in braces.
    function test_code_data() {
        return [
            { tag: "one", typed: "a()", written: "a()" },
            { tag: "several", typed: "a(); b()", written: "{\na(); b()\n}" },
            { tag: "braces", typed: "{ a() }", written: "{ a() }" },
            { tag: "open", typed: "a(", written: "" },
            { tag: "out of the object", typed: "a() } Item {", written: "" }
        ];
    }
    function test_code(data) {
        open("BasicButton { width: 100; height: 50 }");
        select(0);
        const area = row("onClicked").area;
        area.edit.forceActiveFocus();
        area.text = data.typed;
        elsewhere.forceActiveFocus();
        compare(Ejs.getProperty("onClicked"), data.written);
        compare(area.hasError, data.written === "");
        compare(takeChanges()[0], data.written === "" ? 0 : 1);
        verifyMap();
    }

    readonly property string menu: "CartaMenu { title: 'Menu'\n    model: [\n        { name: 'Tea', price: '2' },\n"
                                   + "        { name: 'Coffee', price: '3', special: true }\n    ]\n}"

    function test_entries() {
        open(menu);
        select(0);
        const list = row("model");
        verify(list.isPlain);
        list.setField(1, { name: "price", kind: "text" }, "3.20 \"hot\"");
        list.move(1, -1);
        list.add();
        compare(list.open, 2);
        compare(takeChanges(), [3, 3]);
        compare(Ejs.elementObj.model.map(entry => entry.name), ["Coffee", "Tea", "New entry"]);
        compare(Ejs.elementObj.model[0].special, true);
        compare(Ejs.getProperty("model"), "[\n            { name: \"Coffee\", price: \"3.20 \\\"hot\\\"\", special: true },\n"
                + "            { name: 'Tea', price: '2' },\n            { name: \"New entry\" }\n        ]");
        verifyMap();
        compare(valueAfterReload(0, ["model"]), [JSON.stringify(Ejs.elementObj.model)]);
    }

    // The fields of an entry, by mouse and keys.
    function test_entryFields() {
        open(menu);
        select(0);
        mouseClick(all(row("model"), item => item.text === "Tea")[0], 20, 10);
        compare(row("model").open, 0);
        waitForRendering(panel);
        const inputs = all(row("model"), item => item.echoMode !== undefined && item.visible);
        compare(inputs.map(input => input.text), ["Tea", "2", "", ""]);
        typeInto(inputs[2], "green");
        keyClick(Qt.Key_Return);
        compare(Ejs.elementObj.model[0].details, "green");
        compare(takeChanges()[0], 1);
        mouseClick(all(row("model"), item => item.objectName === "down" && item.enabled)[0]);
        compare(Ejs.elementObj.model.map(entry => entry.name), ["Coffee", "Tea"]);
        compare(row("model").open, 1);
    }

    function test_numbersInEntries() {
        open("Schedule { schedules: [{ slide: 0, begin: '06:00', end: '11:00' }] }");
        select(0);
        const field = { name: "slide", kind: "number" };
        row("schedules").setField(0, field, "2");
        compare(Ejs.elementObj.schedules[0].slide, 2);
        row("schedules").setField(0, field, "Lunch");
        compare(Ejs.elementObj.schedules[0].slide, "Lunch");
        compare(Ejs.elementObj.schedules[0].begin, "06:00");
    }

    // A list that the document works out is shown as such and left alone; plain texts become entries.
    function test_lists_data() {
        return [
            { tag: "worked out", model: "[1, 2].map(n => ({ name: 'x' + n }))", isPlain: false },
            { tag: "with a call", model: "[{ name: qsTr('x') }]", isPlain: false },
            { tag: "of another item", model: "parent.children", isPlain: false },
            { tag: "empty", model: "[]", isPlain: true },
            { tag: "with comments and numbers", model: "[{ name: 'a // b', 'price': -1.5e2 /* p */ }, // x\n {}]", isPlain: true }
        ];
    }
    function test_lists(data) {
        open("Carousel { model: " + data.model + "\n}");
        select(0);
        compare(row("model").isPlain, data.isPlain);
        compare(all(row("model"), item => item.objectName === "add")[0].visible, data.isPlain);
    }

    function test_plainTextsAsEntries() {
        fixture.makePicture("a.png", "teal");
        fixture.makePicture("b.png", "navy");
        open("Carousel { model: ['a.png', 'b.png'] }");
        select(0);
        row("model").setField(1, { name: "name", kind: "text" }, "B");
        compare(JSON.stringify(Ejs.elementObj.model), "[\"a.png\",{\"image\":\"b.png\",\"name\":\"B\"}]");
        compare(Ejs.getProperty("model"), "['a.png', { image: \"b.png\", name: \"B\" }]"); // on one line as before
    }

    function bring(name, color) {
        CAPI.writeToFile("x", "chosen/x");
        fixture.makePicture("chosen/" + name, color);
        return fixture.url("chosen/" + name);
    }

    function choose(row, url) {
        form.pickFile(row.kind, row.put);
        const picker = all(panel, item => item.chosen !== undefined)[0].item;
        tryCompare(picker, "opened", true);
        picker.offer(url);
        return picker;
    }

    // A file that nothing names any more leaves the directory map and stays on disk; one that is still named stays.
    function test_filesAndDirmap() {
        open("BasicImage { width: 10; height: 10 }\nBasicImage { width: 10; height: 10; source: 'images/kept.png' }");
        CAPI.writeToFile("Item { property string a: 'images/menu.png' }", "other.qml");
        select(0);
        const image = row("source");
        ["gone.png", "menu.png", "kept.png", "last one ü.png"].forEach(name => {
            CAPI.removeFile("images/" + name);
            const picker = choose(image, bring(name, "red"));
            tryCompare(picker, "visible", false);
            compare(image.path, "images/" + name);
            compare(Ejs.getProperty("source"), "\"images/" + name + "\"");
        });
        compare(takeChanges(), [4, 4]);
        const dirmap = CAPI.dirmap();
        compare(dirmap["images/gone.png"], undefined);
        verify(CAPI.fileExist("images/gone.png"));
        ["menu.png", "kept.png", "last one ü.png"].forEach(name => verify(dirmap["images/" + name] > 0, name));
        mouseClick(all(image, item => item.objectName === "clear")[0]);
        compare(image.path, "");
        compare(CAPI.dirmap()["images/last one ü.png"], undefined);
        CAPI.removeFile("other.qml");
        fixture.takeWarnings();
    }

    // A file of the same name: the user is asked before the project's is replaced; either answer is respected.
    function test_sameName_data() {
        return [{ tag: "keep", key: Qt.Key_Return, color: "#0000ff" }, { tag: "replace", key: Qt.Key_Tab, color: "#ff0000" }];
    }
    function test_sameName(data) {
        open("BasicImage { width: 10; height: 10 }");
        select(0);
        fixture.makePicture("images/same.png", "blue");
        const revision = CAPI.dirmap()["images/same.png"] || 0;
        const picker = choose(row("source"), bring("same.png", "red"));
        compare(picker.opened, true);
        waitForRendering(picker.contentItem);
        keyClick(data.key);
        if (data.key === Qt.Key_Tab)
            keyClick(Qt.Key_Return);
        const taken = data.tag === "replace";
        tryCompare(picker, "visible", !taken);
        compare(row("source").path, taken ? "images/same.png" : "qrc:///Nuvex/Components/icons/noImage.png");
        compare((CAPI.dirmap()["images/same.png"] || 0) > revision, taken);
        picker.close();
        const shown = createTemporaryQmlObject("import QtQuick 2.15; Image { cache: false; width: 20; height: 20; source: '"
                                               + fixture.url("images/same.png") + "' }", test);
        tryCompare(shown, "status", Image.Ready);
        compare(colorAt(shown, 10, 10), data.color);
    }

    function test_fileCannotBeCopied() {
        open("BasicImage { width: 10; height: 10 }");
        select(0);
        const before = CAPI.editedSourceCode();
        const picker = choose(row("source"), "file:///no/such/file.png");
        tryCompare(picker, "visible", false);
        verify(form.problem !== "");
        compare(CAPI.editedSourceCode(), before);
        compare(takeChanges(), [0, 0]);
    }

    // One undo takes back one change.
    function test_undo() {
        open("BasicRectangle { width: 100; height: 50; radius: 4 }");
        select(0);
        const before = CAPI.editedSourceCode();
        form.commit("radius", "5");
        form.commit("color", "\"red\"");
        verify(/radius: 5/.test(CAPI.getBackwardSource()));
        compare(CAPI.getBackwardSource(), before);
    }

    // A property that the document works out shows what it comes to; a change replaces it.
    function test_workedOut() {
        open("BasicRectangle { width: parent.width / 2; height: 50 }");
        select(0);
        openSections();
        compare(row("width").box.realValue, 320);
        form.commit("width", "200");
        compare(Ejs.getProperty("width"), "200");
        compare(Ejs.elementObj.width, 200);
    }

    // Every panel fits its width on the desktop and on a device: nothing sticks out, nothing overlaps.
    function test_layout_data() {
        const rows = [];
        const files = fixture.components().map(file => file.replace(".qml", ""))
            .filter(name => ["BasicRow", "BasicColumn", "BasicGrid", "BasicEdit", "GlowText"].indexOf(name) < 0);
        files.forEach(name => [[320, true], [420, true], [360, false], [1000, false]].forEach(at =>
            rows.push({ tag: name + " at " + at[0] + (at[1] ? "" : " by touch"), kind: name, width: at[0], radEditor: at[1] })));
        return rows;
    }
    function test_layout(data) {
        open(CAPI.getItemPrototype(":/Nuvex/Components/" + data.kind + ".qml"), "import \"qrc:/Nuvex/Components\"\n");
        select(0, { width: data.width, radEditor: data.radEditor });
        openSections();
        const rows = all(panel, item => item.visible && item.form !== undefined && item.label !== undefined);
        rows.forEach(row => {
            all(row, item => item.visible && item.width > 0 && item.Accessible === undefined).forEach(item => {
                const left = item.mapToItem(panel, 0, 0).x;
                verify(left >= -1 && left + item.width <= data.width + 1 || isInside(item), row.label + " " + item);
            });
        });
        const byTop = rows.filter(row => !isInside(row) && !isInRow(row)).map(row => ({ top: row.mapToItem(panel, 0, 0).y, row: row }))
            .sort((a, b) => a.top - b.top);
        for (let i = 1; i < byTop.length; ++i)
            verify(byTop[i].top >= byTop[i - 1].top + byTop[i - 1].row.height - 1, byTop[i].row.label);
        all(panel, item => item.checkState !== undefined).forEach(box => verify(box.text !== "", "a box without its label"));
        fixture.takeWarnings();
    }

    // Whether the item is one of several in a row of the form.
    function isInRow(item) {
        for (let at = item.parent; at && at !== panel; at = at.parent) {
            if (at.form !== undefined && at.label !== undefined)
                return true;
        }
        return false;
    }

    // Whether the item is inside something that cuts it off, as text in a field.
    function isInside(item) {
        for (let at = item.parent; at && at !== panel; at = at.parent) {
            if (at.clip === true && at.contentHeight === undefined)
                return true;
        }
        return false;
    }
}
