// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

ComponentCase {
    id: test
    name: "Containers"

    function boxes() {
        return [
            { tag: "BasicRow", extra: "spacing: 10;", last: [65, 5], size: [140, 60] },
            { tag: "BasicColumn", extra: "spacing: 10;", last: [5, 65], size: [80, 110] },
            { tag: "BasicGrid", extra: "spacing: 10; cols: 1;", last: [5, 65], size: [80, 110] }
        ];
    }

    // Two items, of 50 x 50 and 70 x 40, with margins of 5.
    function makeBox(data, items) {
        return make(data.tag + " { hMargin: 5; vMargin: 5; " + data.extra + items + " }");
    }

    readonly property string small: "Rectangle { width: 50; height: 50 } "
    readonly property string large: "BasicRectangle { objectName: 'last'; width: 70; height: 40 } "

    function place(box, item) {
        var at = item.mapToItem(box, 0, 0);
        return [at.x, at.y];
    }

    function test_declaredItems_data() {
        return boxes();
    }
    function test_declaredItems(data) {
        var box = makeBox(data, small + large);
        waitForRendering(box);
        compare([box.width, box.height], data.size);
        compare(place(box, findChild(box, "last")), data.last);
    }

    // A slide of a show is made so: in pieces, while the screen goes on.
    function test_repeatedItemsMadeInPieces() {
        var loader = make("Loader { asynchronous: true; sourceComponent: Component { "
                          + "BasicRow { hMargin: 5; vMargin: 5; spacing: 10; Repeater { model: 3; " + small + "} } } }");
        tryVerify(function() { return loader.item !== null && loader.item.width === 180; });
        compare(loader.item.height, 60);
    }

    // The editor makes items as children of the container itself.
    function test_droppedItems_data() {
        return boxes();
    }
    function test_droppedItems(data) {
        var box = makeBox(data, small);
        var component = Qt.createComponent("qrc:/Nuvex/Components/BasicRectangle.qml");
        component.createObject(box, { "objectName": "last", "width": 70, "height": 40, "x": 200, "y": 200 });
        waitForRendering(box);
        compare([box.width, box.height], data.size);
        compare(box.editor, undefined);
    }

    function test_emptyBoxHasAPlaceInTheEditor_data() {
        return boxes();
    }
    function test_emptyBoxHasAPlaceInTheEditor(data) {
        ["property int element: 1", ""].forEach(function(numbered) {
            var ground = make("Rectangle { width: 400; height: 300; color: 'white'; " + data.tag + " { " + numbered + " } }");
            compare(colorAt(ground, 100, 0) === "#ffffff", numbered === "");
        });
    }

    function test_motions_data() {
        return ["float", "sway", "swing", "pulse", "spin", "turn", "shake"].map(function(name) { return { tag: name }; });
    }
    function test_motions(data) {
        var item = make("AnimatedItem { motion: '" + data.tag + "'; time: 400 }");
        var still = JSON.stringify(item.pose);
        tryVerify(function() { return JSON.stringify(item.pose) !== still; });
        item.running = false;
        compare(item.phase, 0);
        var edited = make("AnimatedItem { property int element: 2; motion: '" + data.tag + "'; time: 400 }");
        wait(60);
        compare(edited.phase, 0);
    }

    function test_unknownMotionIsNone() {
        var item = make("AnimatedItem { motion: 'explode'; strength: 0 / 0; time: 300 }");
        tryVerify(function() { return item.phase > 0; });
        compare([item.pose.x, item.pose.y, item.pose.angle, item.pose.scale], [0, 0, 0, 1]);
    }
}
