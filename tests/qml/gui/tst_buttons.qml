// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

Item {
    width: 500
    height: 400

    GuiTestCase {
        id: testCase
        name: "Buttons"

        // Whatever is pressed: mouse, Space and Enter each click once; disabled and busy take nothing.
        function test_pressing_data() {
            const buttons = {
                "Button": "Button { text: 'Save'; %1 }",
                "icon Button": "Button { faIcon: 'fa-cog'; %1 }",
                "link": "Button { type: 'link'; text: 'More'; %1 }",
                "ActionButton": "ActionButton { faIcon: 'fa-cog'; toolTip: 'Settings'; %1 }",
                "tile": "ActionButton { faIcon: 'fa-play'; text: 'Play'; %1 }",
                "ListRow": "ListRow { text: 'Lobby'; %1 }",
                "Thumbnail": "Thumbnail { text: 'a.png'; %1 }",
                "RoundedThumbnail": "RoundedThumbnail { %1 }",
                "CheckBox": "CheckBox { text: 'On'; %1 }",
                "Radio": "Radio { text: 'One'; %1 }"
            };
            const rows = [];
            for (const tag in buttons) {
                rows.push({ tag: tag, qml: buttons[tag].arg("x: 50; y: 50"), clicks: 1 });
                rows.push({ tag: tag + " disabled", qml: buttons[tag].arg("x: 50; y: 50; enabled: false"), clicks: 0 });
            }
            rows.push({ tag: "busy", qml: buttons["Button"].arg("x: 50; y: 50; busy: true"), clicks: 0 });
            rows.push({ tag: "busy tile", qml: buttons["tile"].arg("x: 50; y: 50; busy: true"), clicks: 0 });
            return rows;
        }

        function test_pressing(row) {
            const button = make(row.qml);
            const clicked = makeSpy(button, "clicked");
            mouseClick(button);
            compare(clicked.count, row.clicks, "mouse");
            button.forceActiveFocus(Qt.TabFocusReason);
            for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter]) {
                clicked.clear();
                keyClick(key);
                compare(clicked.count, row.clicks, "key " + key);
            }
        }

        function test_keyboardFocusIsSeen_data() {
            return [
                { tag: "Button { text: 'a' }" }, { tag: "ActionButton { faIcon: 'fa-cog' }" },
                { tag: "CheckBox { text: 'a' }" }, { tag: "Radio { text: 'a' }" }, { tag: "Slider { value: 0.5 }" },
                { tag: "Input {}" }, { tag: "TextArea {}" }, { tag: "SpinBox {}" }, { tag: "ListRow { text: 'a' }" },
                { tag: "ComboBox { model: ['a'] }" }, { tag: "ColorButton {}" }, { tag: "Thumbnail {}" },
                { tag: "SwitchTabs { model: ['a', 'b'] }" }, { tag: "RadioGroup { model: ['a', 'b'] }" }
            ];
        }

        function test_keyboardFocusIsSeen(row) {
            const item = make(row.tag);
            item.x = item.y = 60;
            settle(stage);
            const before = grabImage(stage);
            item.forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => !grabImage(stage).equals(before), 2000);
        }

        // A finger beside a small control still hits it; a mouse control ends at its edge.
        function test_touchReach_data() {
            const rows = [];
            for (const type of ["Button", "ActionButton", "CheckBox", "Radio"]) {
                rows.push({ tag: type + " large", qml: type + " { size: 'large'; text: 'x' }", hit: true });
                rows.push({ tag: type + " base", qml: type + " { size: 'base'; text: 'x' }", hit: false });
            }
            return rows.filter(row => !row.tag.startsWith("ActionButton"));
        }

        function test_touchReach(row) {
            const button = make(row.qml);
            button.x = button.y = 60;
            const clicked = makeSpy(button, "clicked");
            mouseClick(stage, 60 + button.width / 2, 58);
            compare(clicked.count, row.hit ? 1 : 0);
            compare(button.height + 2 * (row.hit ? 3 : 0) >= 44, row.hit);
        }

        function test_longTextIsElidedNotClipped_data() {
            return [{ tag: "Button", width: 90 }, { tag: "Button", width: 30 }, { tag: "ListRow", width: 120 }];
        }

        function test_longTextIsElidedNotClipped(row) {
            const text = "A caption that is far too long";
            const button = make("%1 { width: %2; faIcon: 'fa-cog'; text: '%3' }".arg(row.tag).arg(row.width).arg(text));
            const caption = findBy(button, "truncated", true);
            verify(caption);
            compare(caption.text, text);
            const right = caption.mapToItem(button, caption.width, 0).x;
            verify(right <= button.width, right);
        }

        function test_iconsLineUpInTheMiddle() {
            const button = make("Button { faIcon: 'fa-cog'; width: 60; height: 60 }");
            const icon = findBy(button, "faIcon", "fa-cog").children[0].children[0];
            fuzzyCompare(icon.mapToItem(button, icon.width / 2, 0).x, 30, 1);
        }

        function test_tabOrder() {
            const row = make("Row { spacing: 5; Button { text: 'a' } CheckBox { text: 'b' } "
                             + "Button { text: 'off'; enabled: false } ActionButton { faIcon: 'fa-cog' } }");
            row.children[0].forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(row.children[1].activeFocus);
            keyClick(Qt.Key_Tab);
            verify(row.children[3].activeFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(row.children[1].activeFocus);
        }

        function test_toolTipShowsOnHover() {
            const button = make("ActionButton { x: 50; y: 50; faIcon: 'fa-cog'; toolTip: 'Settings' }");
            mouseMove(button, 5, 5);
            const tip = findTip(button);
            tryVerify(() => tip.opened);
            compare(tip.text, "Settings");
            mouseMove(stage, 400, 380);
            tryVerify(() => !tip.visible);
        }

        function findTip(button) {
            for (let i = 0; i < button.data.length; ++i) {
                if (button.data[i].delay !== undefined)
                    return button.data[i];
            }
            return null;
        }
    }
}
