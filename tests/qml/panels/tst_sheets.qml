// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
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

    // The specimens of chapter `index`, once it is loaded.
    function specimensOf(gallery, index) {
        gallery.currentIndex = index;
        tryVerify(() => gallery.chapter !== null, 5000, gallery.chapters[index].text);
        return below(gallery.chapter).filter(item => item.about !== undefined && item.ratio !== undefined);
    }

    function test_everyComponent() {
        const gallery = createTemporaryObject(component, test);
        let seen = [];
        for (let i = 1; i < gallery.chapters.length; ++i) {
            const specimens = specimensOf(gallery, i);
            specimens.forEach(specimen => {
                gallery.chapter.pane.reveal(specimen);
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

    // A chapter comes bit by bit: one specimen at a time, frames between two, and only what is in sight.
    function test_bitByBit() {
        const gallery = createTemporaryObject(component, test, { height: 0 });
        const specimens = specimensOf(gallery, 1);
        const framesAt = [];
        let frames = 0;
        const count = () => ++frames;
        test.Window.window.frameSwapped.connect(count);
        specimens.forEach(specimen => specimen.isFilledChanged.connect(() => {
            framesAt.push(frames);
            compare(specimens.filter(other => other.isFilled && !other.shown).length, 1);
        }));
        const pane = gallery.chapter.pane;
        gallery.height = 300;
        const inSight = specimen => specimen.mapToItem(pane, 0, 0).y < pane.height;
        const first = specimens.filter(inSight);
        tryVerify(() => first.every(specimen => specimen.shown));
        wait(100);
        verify(first.length < specimens.length);
        compare(specimens.filter(specimen => specimen.isFilled), first);
        pane.reveal(specimens[specimens.length - 1]);
        tryVerify(() => specimens[specimens.length - 1].shown);
        verify(framesAt.every((frame, i) => i === 0 || frame > framesAt[i - 1]), framesAt);
        test.Window.window.frameSwapped.disconnect(count);
    }

    Component {
        id: component

        Gallery {
            width: test.width
            height: test.height
        }
    }
}
