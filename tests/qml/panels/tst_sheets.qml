// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.Gallery 1.0
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
        const gallery = createTemporaryObject(component, test);
        let seen = [];
        for (let i = 1; i < gallery.chapters.length; ++i) {
            gallery.currentIndex = i;
            verify(gallery.chapter, gallery.chapters[i].text);
            const specimens = below(gallery.chapter).filter(item => item.about !== undefined && item.ratio !== undefined);
            specimens.forEach(specimen => {
                tryVerify(() => specimen.shown !== null, 5000, specimen.title);
                const box = specimen.shown.mapToItem(specimen, 0, 0, specimen.shown.width, specimen.shown.height);
                verify(box.width > 40 && box.x >= 0 && box.x + box.width <= specimen.width, specimen.title + " " + box);
            });
            waitForRendering(gallery);
            seen = seen.concat(specimens.map(specimen => specimen.title + ".qml"));
        }
        compare(seen.sort(), fixture.components().sort());
        compare(fixture.takeWarnings(), []);
    }

    Component {
        id: component

        Gallery {
            width: test.width
            height: test.height
        }
    }
}
