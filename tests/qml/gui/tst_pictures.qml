// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

Item {
    id: root
    width: 400
    height: 300

    // A picture of four quarters: red, green, blue, yellow.
    Grid {
        id: quarters
        x: 300
        columns: 2

        Repeater {
            model: ["#ff0000", "#00ff00", "#0000ff", "#ffff00"]

            Rectangle {
                width: 40
                height: 20
                color: modelData
            }
        }
    }

    GuiTestCase {
        name: "Pictures"

        property url picture

        function initTestCase() {
            fixture.recordWarnings(true);
            let saved = false;
            picture = testFolder + "/quarters.png";
            quarters.grabToImage(result => { saved = result.saveToFile(String(picture).replace("file://", "")); });
            tryVerify(() => saved);
        }

        function colourAt(item, x, y) {
            const at = item.mapToItem(root, x, y);
            const image = grabImage(root);
            const hex = part => ("0" + part.toString(16)).slice(-2);
            return hex(image.red(at.x, at.y)) + hex(image.green(at.x, at.y)) + hex(image.blue(at.x, at.y));
        }

        function test_roundedImage_data() {
            return [
                { tag: "inside", x: 20, y: 20, colour: "ff0000" },
                { tag: "right", x: 120, y: 20, colour: "00ff00" },
                { tag: "below", x: 50, y: 90, colour: "0000ff" },
                { tag: "corner", x: 2, y: 2, colour: "ffffff" },
                { tag: "far corner", x: 157, y: 97, colour: "ffffff" },
                { tag: "edge beside the corner", x: 45, y: 1, colour: "ff0000" },
                // On the diagonal the corner's circle of 40 meets x = 40 - 40 / sqrt(2) = 11.7.
                { tag: "just outside the curve", x: 9, y: 9, colour: "ffffff" },
                { tag: "just inside the curve", x: 14, y: 14, colour: "ff0000" }
            ];
        }

        function test_roundedImage(row) {
            const image = make("RoundedImage { width: 160; height: 100; radius: 40; source: '" + picture + "' }");
            tryCompare(image, "status", Image.Ready);
            tryVerify(() => colourAt(image, row.x, row.y) === row.colour, 2000, colourAt(image, row.x, row.y));
        }

        function test_roundedImageFades() {
            const image = make("RoundedImage { width: 80; height: 40; radius: 4; opacity: 0.5; source: '" + picture
                               + "' }");
            tryVerify(() => /ff[78][0-9a-f][78][0-9a-f]/.test(colourAt(image, 20, 10)));
        }

        // The window is 60 by 60 on the picture laid out at 160 by 80: its quarters meet at 80, 40.
        function test_imageScope_data() {
            return [
                { tag: "red quarter", scopeX: 0, scopeY: -20, x: 30, y: 30, colour: "ff0000" },
                { tag: "outside the picture", scopeX: 0, scopeY: -20, x: 30, y: 10, colour: "ffffff" },
                { tag: "left of the middle", scopeX: 50, scopeY: 10, x: 25, y: 25, colour: "ff0000" },
                { tag: "right of the middle", scopeX: 50, scopeY: 10, x: 35, y: 25, colour: "00ff00" },
                { tag: "below the middle", scopeX: 50, scopeY: 10, x: 25, y: 35, colour: "0000ff" },
                { tag: "cut corner", scopeX: 50, scopeY: 10, x: 3, y: 3, colour: "ffffff" },
                { tag: "beyond the right edge", scopeX: 120, scopeY: 10, x: 50, y: 30, colour: "ffffff" }
            ];
        }

        function test_imageScope(row) {
            const scope = make("ImageScope { width: 60; height: 60; imageWidth: 160; imageHeight: 80; scopeX: "
                               + row.scopeX + "; scopeY: " + row.scopeY + "; source: '" + picture + "' }");
            tryCompare(scope, "status", Image.Ready);
            tryVerify(() => colourAt(scope, row.x, row.y) === row.colour, 2000, colourAt(scope, row.x, row.y));
        }

        function test_thumbnails_data() {
            return [{ tag: "Thumbnail" }, { tag: "RoundedThumbnail" }];
        }

        function test_thumbnails(row) {
            const thumbnail = make(row.tag + " { text: 'Quarters' }");
            verify(findBy(thumbnail, "faIcon", "fa-picture-o").visible);
            thumbnail.source = picture;
            tryCompare(thumbnail, "status", Image.Ready);
            compare(findBy(thumbnail, "faIcon", "fa-picture-o").visible, false);
            const size = thumbnail.pictureSize / 2;
            tryVerify(() => colourAt(thumbnail, size - 8, size - 4) === "ff0000");
            thumbnail.source = testFolder + "/notes.txt";
            tryCompare(thumbnail, "status", Image.Error);
            verify(findBy(thumbnail, "faIcon", "fa-chain-broken").visible);
            verify(fixture.takeWarnings().every(warning => warning.includes("notes.txt")));
        }
    }
}
