// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Gallery 1.0

Item {
    id: root
    width: 1280
    height: 720

    GuiTestCase {
        name: "Gallery"

        function makeGallery(width, height) {
            root.width = width;
            root.height = height;
            const gallery = createTemporaryObject(component, stage);
            settle(gallery);
            return gallery;
        }

        function forEachItem(item, check) {
            if (!item.visible || item.opacity === 0)
                return;
            check(item);
            for (let i = 0; i < item.children.length; ++i)
                forEachItem(item.children[i], check);
        }

        function sizes() {
            return [{ tag: "1280x720", width: 1280, height: 720, columns: 2 },
                    { tag: "1920x1080", width: 1920, height: 1080, columns: 3 },
                    { tag: "1080x1920", width: 1080, height: 1920, columns: 2 },
                    { tag: "480x800", width: 480, height: 800, columns: 1 }];
        }

        function test_noTextIsCut_data() {
            return sizes();
        }

        function test_noTextIsCut(row) {
            const gallery = makeGallery(row.width, row.height);
            compare(gallery.columns, row.columns);
            let texts = 0;
            forEachItem(gallery, item => {
                if (item.truncated === undefined || item.text === "")
                    return;
                ++texts;
                verify(item.truncated || item.width + 1 >= item.contentWidth, item.text + " is cut");
                const right = item.mapToItem(gallery, item.width, 0).x;
                verify(right <= gallery.width + 1, item.text + " ends at " + right);
            });
            verify(texts > 500, texts);
        }

        // Tab indents source; with Ctrl it goes on.
        function isSource(item) {
            return item.textDocument !== undefined && item.font.family === BGUI.Theme.codeFamily;
        }

        function focusedItem() {
            return root.Window.activeFocusItem;
        }

        // Tab goes round all the sheets, and what has the focus is in view.
        function test_tabReachesEverything() {
            const gallery = makeGallery(1280, 720);
            const kinds = {};
            keyClick(Qt.Key_Tab);
            const first = focusedItem();
            verify(first);
            let stops = 0;
            do {
                const item = focusedItem();
                for (let above = item; above !== gallery; above = above.parent)
                    kinds[String(above).split("_")[0]] = true;
                const y = item.mapToItem(gallery, 0, 0).y;
                verify(y > -1 && y + Math.min(item.height, 600) <= 721, item + " at " + y);
                ++stops;
                keyClick(Qt.Key_Tab, isSource(item) ? Qt.ControlModifier : Qt.NoModifier);
            } while (focusedItem() !== first && stops < 300);
            verify(stops > 70 && stops < 300, stops);
            for (const kind of ["Button", "ActionButton", "CheckBox", "Radio", "ComboBox", "Slider", "Input", "ListRow",
                                "Thumbnail", "RoundedThumbnail", "ColorButton", "SwitchTabs", "FolderList"])
                verify(kinds[kind], kind);
        }

        Component {
            id: component

            Gallery {
                width: root.width
                height: root.height
                chapters: [{ text: "Widgets", source: "GalleryWidgets.qml" }]
                focus: true
            }
        }
    }
}
