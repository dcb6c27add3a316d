// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Nuvex.Editor 1.0

// Panels by keyboard alone: Tab reaches every control from top to bottom and shows where it is, and what drops down is
// opened, used and left again without the page noticing.
PanelCase {
    id: test
    name: "Keyboard"

    property int escapes: 0

    Keys.onEscapePressed: ++escapes

    function focusedItem() {
        return test.Window.activeFocusItem;
    }

    function isBelow(item, ancestor) {
        return item !== null && (item === ancestor || isBelow(item.parent, ancestor));
    }

    // A ring around the control, or the frame of a field in the colour of the focus.
    function showsFocus(item) {
        const isMark = part => part.visible && (part.isFocused === true || part.cornerRadius !== undefined);
        return all(item, isMark).length > 0 || (isBelow(item.parent, panel) && showsFocus(item.parent));
    }

    function isSource(item) {
        return item.textDocument !== undefined;
    }

    function test_tab_data() {
        return panelRows();
    }
    function test_tab(data) {
        openComponent(data.tag);
        openSections();
        panel.height = 300;
        const wanted = all(panel, item => item.activeFocusOnTab && item.visible && item.enabled);
        const visited = [];
        let last = -1;
        panel.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
        for (let item = focusedItem(); isBelow(item, panel) && visited.indexOf(item) < 0; item = focusedItem()) {
            const y = item.mapToItem(panel, 0, 0).y;
            verify(y > -1 && y + Math.min(item.height, 250) < 301, item + " is out of sight at " + y);
            const middle = item.mapToItem(wanted[0], 0, item.height / 2).y;
            verify(visited.length === 0 || middle > last - 8, item + " comes after what stands below it");
            verify(showsFocus(item), item + " does not show the focus");
            visited.push(item);
            last = middle;
            keyClick(Qt.Key_Tab, isSource(item) ? Qt.ControlModifier : Qt.NoModifier);
        }
        const missed = wanted.filter(item => !visited.some(seen => isBelow(seen, item)));
        compare(missed.map(String), []);
        compare(takeChanges(), [0, 0]);
    }

    // Brings the keyboard to a part of the panel.
    function focusOn(wanted) {
        const item = all(panel, item => item.visible && wanted(item))[0];
        item.forceActiveFocus(Qt.TabFocusReason);
        escapes = 0;
        takeChanges();
        return item;
    }

    // Nothing of what happened in a pop-up reached the page, and the keyboard is back where it was.
    function verifyBackAt(item) {
        tryVerify(() => item.activeFocus);
        compare(escapes, 0);
    }

    function test_colours() {
        openComponent("BasicRectangle");
        const button = focusOn(item => item.popup && item.color !== undefined);
        const before = String(button.color);
        keyClick(Qt.Key_Return);
        tryCompare(button.popup, "opened", true);
        verify(isBelow(focusedItem(), button.popup.contentItem));
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Down);
        verify(String(button.color) !== before);
        for (let stops = 0; focusedItem().sample === undefined && stops < 5; ++stops)
            keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Space);
        compare(String(button.color), String(focusedItem().sample));
        compare(takeChanges(), [0, 0]);
        keyClick(Qt.Key_Escape);
        tryCompare(button.popup, "visible", false);
        verifyBackAt(button);
        compare(takeChanges(), [1, 1]);
    }

    function test_choices_data() {
        return [{ tag: "chosen", key: Qt.Key_Return, changes: [1, 1] }, { tag: "left", key: Qt.Key_Escape, changes: [0, 0] }];
    }
    function test_choices(data) {
        openComponent("BasicImage");
        const box = focusOn(item => item.popup && item.currentIndex !== undefined);
        const before = box.currentIndex;
        keyClick(Qt.Key_Return);
        tryCompare(box.popup, "opened", true);
        keyClick(box.highlightedIndex < box.count - 1 ? Qt.Key_Down : Qt.Key_Up);
        keyClick(data.key);
        tryCompare(box.popup, "visible", false);
        compare(box.currentIndex !== before, data.tag === "chosen");
        verifyBackAt(box);
        compare(takeChanges(), data.changes);
    }

    function test_files() {
        CAPI.writeToFile("no picture", "shelf/words.txt");
        fixture.makePicture("shelf/first.png", "red");
        fixture.makePicture("shelf/second.png", "blue");
        openComponent("BasicImage");
        const choose = focusOn(item => item.objectName === "choose");
        keyClick(Qt.Key_Return);
        const picker = all(panel, item => item.chosen !== undefined)[0].item;
        tryCompare(picker, "opened", true);
        keyClick(Qt.Key_Escape);
        tryCompare(picker, "visible", false);
        verifyBackAt(choose);
        compare(takeChanges(), [0, 0]);
        keyClick(Qt.Key_Return);
        tryCompare(picker, "opened", true);
        picker.folder = fixture.url("shelf");
        tryVerify(() => /first\.png$/.test(picker.contentItem.currentFile));
        keyClick(Qt.Key_Down);
        tryVerify(() => /second\.png$/.test(picker.contentItem.currentFile));
        keyClick(Qt.Key_Return);
        tryCompare(picker, "visible", false);
        verifyBackAt(choose);
        compare(takeChanges(), [1, 1]);
        verify(CAPI.fileExist("images/second.png"));
    }

    // A list's entry is opened, its member typed, and the entry taken out, without the mouse.
    function test_entries() {
        openComponent("Carousel");
        const add = focusOn(item => item.objectName === "add");
        const count = Ejs.elementObj.model.length;
        keyClick(Qt.Key_Return);
        compare(Ejs.elementObj.model.length, count + 1);
        takeChanges();
        const field = focusOn(item => item.placeholderText !== undefined && isBelow(item, add.parent.parent));
        keyClick(Qt.Key_A, Qt.ControlModifier);
        "New".split("").forEach(letter => keyClick(letter));
        keyClick(Qt.Key_Return);
        compare(takeChanges(), [1, 1]);
        verify(JSON.stringify(Ejs.elementObj.model[count]).indexOf("New") >= 0);
        const remove = all(panel, item => item.objectName === "remove" && item.visible).pop();
        remove.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(Ejs.elementObj.model.length, count);
    }
}
