// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

/// A test case on components. Items are made inside it, so that they are drawn; a warning that a test has not taken
/// with expectWarnings() fails it.
TestCase {
    id: root

    width: 640
    height: 480
    visible: true
    when: windowShown

    // What a document may count on wherever the editor puts an item: the imports that it pastes below.
    readonly property string pasteImports: "import QtQuick 2.15\nimport Nuvex.Editor 1.0\nimport Nuvex.Components 1.0\n"
        + "import Nuvex.GUI 1.0 as BGUI\nimport QtQuick.Controls 1.4\nimport Nuvex.Native 1.0\nimport QtQuick.Layouts 1.15\n"
        + "import QtQml 2.2\n"

    // A fresh instance of `component`, a file name, as a document holds it. Two components are in no module.
    function makePrototype(component) {
        const prototype = CAPI.getItemPrototype(":/Nuvex/Components/" + component);
        const folder = fixture.source("qmldir").indexOf(component) < 0 ? "import 'qrc:/Nuvex/Components'\n" : "";
        return createTemporaryQmlObject(pasteImports + folder + prototype, root);
    }

    // A document with `text` as its root object, made inside the case and destroyed with the test.
    function make(text) {
        return createTemporaryQmlObject("import QtQuick 2.15; import QtMultimedia 5.15; import QtQuick.Layouts 1.15; "
                                        + "import Nuvex.Components 1.0; " + text, root);
    }

    // The colour drawn at a point of `item`, as "#rrggbb".
    function colorAt(item, x, y) {
        return String(grabImage(item).pixel(x, y));
    }

    // Whether two colours differ by no more than compression makes them.
    function isNear(color, wanted) {
        var a = Qt.darker(color, 1), b = Qt.darker(wanted, 1);
        return Math.abs(a.r - b.r) + Math.abs(a.g - b.g) + Math.abs(a.b - b.b) < 0.2;
    }

    // The watch over the media of `item`.
    function findRetry(item) {
        for (var i = 0; i < item.resources.length; ++i) {
            if (item.resources[i].look !== undefined)
                return item.resources[i];
        }
        for (i = 0; i < item.children.length; ++i) {
            var found = findRetry(item.children[i]);
            if (found)
                return found;
        }
        return null;
    }

    function expectWarnings(count, pattern) {
        var warnings = fixture.takeWarnings();
        compare(warnings.length, count, warnings.join("; "));
        warnings.forEach(function(text) { verify(pattern.test(text), text); });
    }

    function init() {
        fixture.recordWarnings();
    }

    function cleanup() {
        var warnings = fixture.takeWarnings();
        compare(warnings.length, 0, warnings.join("; "));
    }
}
