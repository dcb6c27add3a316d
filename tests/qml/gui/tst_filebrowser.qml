// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import "qrc:/Nuvex/GUI/private/format.js" as Format

Item {
    id: root
    width: 800
    height: 600

    GuiTestCase {
        name: "FileBrowser"

        function makeBrowser(size) {
            const browser = make("FileBrowser { anchors.fill: parent; nameFilters: ['*.zip']; focus: true; size: '"
                                 + (size || "base") + "'; folder: '" + testFolder + "' }");
            tryVerify(() => row(browser, "alpha.zip") !== null);
            browser.forceActiveFocus();
            return browser;
        }

        function row(browser, name) {
            return findBy(browser, "text", name);
        }

        function nameOf(url) {
            return decodeURIComponent(String(url).split("/").pop());
        }

        function test_keys_data() {
            const down = Qt.Key_Down;
            return [
                { tag: "arrows", keys: [down, down, down, down], file: "beta.zip" },
                { tag: "end", keys: [Qt.Key_End], file: "gamma #1.zip" },
                { tag: "page down", keys: [Qt.Key_PageDown], file: "gamma #1.zip" },
                { tag: "home", keys: [Qt.Key_End, Qt.Key_Home], file: "" },
                { tag: "letters", keys: ["b"], file: "beta.zip" },
                { tag: "more letters", keys: ["a", "l"], file: "alpha.zip" },
                { tag: "no such letters", keys: ["b", "x"], file: "beta.zip" }
            ];
        }

        function test_keys(row) {
            const browser = makeBrowser();
            const chosen = makeSpy(browser, "fileSelected");
            row.keys.forEach(key => keyClick(key));
            compare(nameOf(browser.currentFile), row.file);
            if (row.file === "")
                return;
            keyClick(Qt.Key_Return);
            compare(chosen.count, 1);
            compare(nameOf(chosen.signalArguments[0][0]), row.file);
        }

        function test_folders() {
            const browser = makeBrowser();
            keyClick("z");
            keyClick(Qt.Key_Return);
            tryVerify(() => findBy(browser, "title", "Nothing to choose here").visible);
            compare(nameOf(browser.folder), "Zoo & Ä%25 #1?");
            verify(row(browser, "Zoo & Ä%25 #1?").visible);
            keyClick(Qt.Key_Backspace);
            tryVerify(() => row(browser, "alpha.zip") !== null);
            compare(String(browser.folder), String(testFolder));
            const crumb = row(browser, "tmp");
            if (crumb) {
                mouseClick(crumb);
                compare(String(browser.folder), "file:///tmp");
            }
        }

        function test_filterHidesOtherFiles() {
            const browser = makeBrowser();
            compare(row(browser, "notes.txt"), null);
            browser.nameFilters = ["*.txt"];
            tryVerify(() => row(browser, "notes.txt") !== null);
            compare(row(browser, "alpha.zip"), null);
            verify(row(browser, "Archives") !== null);
        }

        function test_mouse() {
            const browser = makeBrowser();
            const chosen = makeSpy(browser, "fileSelected");
            const open = row(browser, "Open");
            verify(!open.enabled);
            mouseClick(row(browser, "alpha.zip"));
            compare(nameOf(browser.currentFile), "alpha.zip");
            mouseClick(open);
            compare(chosen.count, 1);
            mouseDoubleClickSequence(row(browser, "beta.zip"));
            compare(chosen.count, 2);
            mouseClick(row(browser, "Empty"));
            compare(String(browser.folder), String(testFolder));
            mouseDoubleClickSequence(row(browser, "Empty"));
            compare(nameOf(browser.folder), "Empty");
        }

        function test_tapOpensAFolder() {
            const browser = makeBrowser("large");
            verify(row(browser, "Empty").height >= 44);
            mouseClick(row(browser, "Empty"));
            compare(nameOf(browser.folder), "Empty");
        }

        function test_cancel() {
            const browser = makeBrowser();
            const canceled = makeSpy(browser, "canceled");
            keyClick(Qt.Key_Escape);
            mouseClick(row(browser, "Cancel"));
            mouseClick(findBy(browser, "faIcon", "fa-arrow-left"));
            compare(canceled.count, 3);
        }

        function test_missingFolderSaysSo() {
            const browser = makeBrowser();
            browser.folder = testFolder + "/gone";
            const message = findBy(browser, "title", "This folder cannot be opened")
                          || findBy(browser, "title", "Nothing to choose here");
            tryCompare(message, "isError", true);
            verify(message.visible);
            browser.goUp();
            tryVerify(() => row(browser, "alpha.zip") !== null);
        }

        function test_bytes_data() {
            return [
                { count: 0, text: "0 B" }, { count: 1023, text: "1023 B" }, { count: 1024, text: "1.0 KB" },
                { count: 1536, text: "1.5 KB" }, { count: 10485760, text: "10 MB" }, { count: 5e9, text: "4.7 GB" },
                { count: 9e15, text: "8,185 TB" }
            ].map(row => Object.assign({ tag: row.text }, row));
        }

        function test_bytes(row) {
            compare(Format.bytes(row.count).replace(/[.,]/g, ""), row.text.replace(/[.,]/g, ""));
        }

        function test_textStaysInside_data() {
            return [{ tag: "landscape", width: 800, height: 600 }, { tag: "narrow", width: 300, height: 600 },
                    { tag: "portrait", width: 540, height: 960 }];
        }

        function test_textStaysInside(row) {
            root.width = row.width;
            root.height = row.height;
            const browser = makeBrowser("large");
            settle(browser);
            forEachText(browser, text => {
                verify(text.truncated || text.width >= text.contentWidth - 1, text.text);
            });
            root.width = 800;
            root.height = 600;
        }

        function forEachText(item, check) {
            if (item.truncated !== undefined && item.visible && item.text !== "")
                check(item);
            for (let i = 0; i < item.children.length; ++i)
                forEachText(item.children[i], check);
        }
    }
}
