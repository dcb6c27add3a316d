// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

ComponentCase {
    id: test
    name: "Contract"

    function rows(files) {
        return files.map(function(file) { return { tag: file.replace(".qml", ""), file: file }; });
    }

    function test_membersInOrder_data() {
        return rows(fixture.components());
    }
    function test_membersInOrder(data) {
        var name = data.tag;
        var members = [
            "property int element: -1; function evaluate(str) {eval(str);}",
            "property var editor",
            "property var preview: preview",
            "property string cPrototype:"
        ];
        var text = fixture.source(data.file);
        var positions = members.map(function(member) { return text.indexOf("\n    " + member); });
        positions.forEach(function(position, i) {
            verify(position > 0, "has " + members[i]);
            verify(i === 0 || position > positions[i - 1], members[i] + " stands in its place");
        });
        verify(text.indexOf("id: preview") > 0);
    }

    function test_prototypeIsAnInstance_data() {
        return rows(fixture.components());
    }
    function test_prototypeIsAnInstance(data) {
        var prototype = CAPI.getItemPrototype(":/Nuvex/Components/" + data.file);
        verify(prototype.indexOf(data.tag) === 0, prototype);
        var records = CAPI.parseAndGetMap("\n" + prototype + "\n");
        compare(records.length, 1);
        compare(records[0].typename, data.tag);
        var item = makePrototype(data.file);
        verify(item.width > 0 && item.height > 0);
        compare(item.cPrototype, prototype);
        waitForRendering(item);
    }

    // The live item that a drop makes is a plain instance; the source gets the prototype. They must look alike.
    function test_dropLooksLikePrototype_data() {
        return rows(fixture.components());
    }
    function test_dropLooksLikePrototype(data) {
        var component = Qt.createComponent("qrc:/Nuvex/Components/" + data.file);
        compare(component.status, Component.Ready, component.errorString());
        var dropped = createTemporaryObject(component, test, { "element": 7, "x": 3, "y": 4 });
        compare(dropped.element, 7);
        var record = CAPI.parseAndGetMap(dropped.cPrototype)[0];
        var prototype = makePrototype(data.file);
        Object.keys(record.properties).forEach(function(key) {
            var path = key.split(".");
            var read = function(item) { return String(path.reduce(function(at, part) { return at[part]; }, item)); };
            tryVerify(function() { return read(dropped) === read(prototype); }, 2000,
                      key + ": " + read(dropped) + " and " + read(prototype));
        });
    }

    function test_evaluateAndPreview_data() {
        return rows(fixture.components());
    }
    function test_evaluateAndPreview(data) {
        var component = Qt.createComponent("qrc:/Nuvex/Components/" + data.file);
        var item = createTemporaryObject(component, test);
        compare(item.element, -1);
        item.evaluate("width = 123");
        compare(item.width, 123);
        var tile = createTemporaryObject(item.preview, test);
        verify(tile.implicitWidth > 0 && tile.implicitWidth <= 128);
        waitForRendering(tile);
    }

    // Without size and with too much of it, and while not seen.
    function test_absurdSizesAreQuiet_data() {
        return rows(fixture.components());
    }
    function test_absurdSizesAreQuiet(data) {
        var component = Qt.createComponent("qrc:/Nuvex/Components/" + data.file);
        var item = createTemporaryObject(component, test);
        [[0, 0], [-50, 20], [1, 3000]].forEach(function(size) {
            item.width = size[0];
            item.height = size[1];
            waitForRendering(item, 30);
        });
        item.visible = false;
        wait(0);
        item.visible = true;
        wait(0);
    }

    function test_moduleFile() {
        var lines = fixture.source("qmldir").trim().split("\n");
        compare(lines.shift(), "module Nuvex.Components");
        var irregular = ["GlowTextEditor", "GridOrganizerEditor"];
        lines.forEach(function(line) {
            var words = line.split(" ");
            compare(words, [words[0], "1.0", words[0] + ".qml"]);
            compare(fixture.source(words[2]) === "", irregular.indexOf(words[0]) >= 0, words[0]);
        });
        irregular.forEach(function(name) {
            compare(lines.filter(function(line) { return line.indexOf(name + " ") === 0; }).length, 1);
        });
    }
}
