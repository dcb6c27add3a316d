// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

// A test case that fails on any warning, and creates widgets from their declaration.
TestCase {
    id: testCase

    /// URL of a folder to browse: the folders Archives, Empty and "Zoo & Ä%25 #1?", and alpha.zip, beta.zip,
    /// "gamma #1.zip" and notes.txt.
    readonly property string testFolder: fixture.url("browse")

    property Item stage: Item {
        parent: testCase.parent
        anchors.fill: parent
    }

    function initTestCase() {
        ["beta.zip", "alpha.zip", "gamma #1.zip", "notes.txt", "Archives/a", "Zoo & Ä%25 #1?/a", "Empty/a"].forEach(
            name => CAPI.writeToFile("test", "browse/" + name));
        CAPI.removeFile("browse/Empty/a");
        fixture.recordWarnings(true);
    }

    function cleanup() {
        compare(fixture.takeWarnings(), [], "warnings");
    }

    // An object of that declaration, below `stage`, gone after the test function.
    function make(declaration) {
        const imports = "import QtQuick 2.15\nimport Nuvex.GUI 1.0\n";
        return createTemporaryQmlObject(imports + declaration, stage, "made");
    }

    function makeSpy(target, signalName) {
        return createTemporaryObject(spy, testCase, { "target": target, "signalName": signalName });
    }

    // Lays out and draws what is pending, now.
    function settle(item) {
        grabImage(item);
    }

    // The first descendant with that property value, or null.
    function findBy(item, property, value) {
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i];
            const found = child[property] === value ? child : findBy(child, property, value);
            if (found)
                return found;
        }
        return null;
    }

    name: "Gui"
    when: windowShown

    Component {
        id: spy
        SignalSpy {}
    }
}
