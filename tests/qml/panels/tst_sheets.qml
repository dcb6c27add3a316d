// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.GUI 1.0 as BGUI
import "../components"

// The gallery's sheets of components: each component is on one of them, fits its wall and says nothing in the log.
ComponentCase {
    id: test
    name: "Sheets"
    width: 1280
    height: 720

    function below(item) {
        return Array.prototype.reduce.call(item.children, (found, child) => found.concat([child], below(child)), []);
    }

    function test_everyComponent() {
        const names = ["Picture", "Text", "Time", "Menu", "Show", "Layout", "Effect"];
        const gallery = createTemporaryObject(component, test, { chapters: names.map(name =>
            ({ text: name, source: "qrc:///Nuvex/Components/gallery/" + name + "Sheets.qml" })) });
        let seen = [];
        names.forEach((name, i) => {
            gallery.currentIndex = i;
            verify(gallery.chapter, name);
            const specimens = below(gallery.chapter).filter(item => item.about !== undefined && item.ratio !== undefined);
            specimens.forEach(specimen => {
                tryVerify(() => specimen.shown !== null, 5000, specimen.title);
                const box = specimen.shown.mapToItem(specimen, 0, 0, specimen.shown.width, specimen.shown.height);
                verify(box.width > 40 && box.x >= 0 && box.x + box.width <= specimen.width, specimen.title + " " + box);
            });
            waitForRendering(gallery);
            seen = seen.concat(specimens.map(specimen => specimen.title + ".qml"));
        });
        compare(seen.sort(), fixture.components().sort());
        compare(fixture.takeWarnings(), []);
    }

    Component {
        id: component

        BGUI.Gallery {
            width: test.width
            height: test.height
        }
    }
}
