// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

Item {
    width: 600
    height: 400

    GuiTestCase {
        name: "Choices"

        function test_checkBoxTellsEveryChange() {
            const box = make("CheckBox { x: 20; y: 20; text: 'Run at startup' }");
            const toggled = makeSpy(box, "toggled");
            mouseClick(box);
            compare(box.checked, true);
            box.forceActiveFocus();
            keyClick(Qt.Key_Return);
            compare(box.checked, false);
            keyClick(Qt.Key_Space);
            compare(box.checked, true);
            compare(toggled.count, 3);
        }

        function test_boundCheckBoxFollowsItsSource() {
            const item = make("Item { property bool on: true; property CheckBox box: CheckBox { parent: stage; "
                              + "checked: on } }");
            item.box.forceActiveFocus();
            keyClick(Qt.Key_Return);
            compare(item.box.checked, false);
            item.on = false;
            item.on = true;
            compare(item.box.checked, true);
        }

        function test_lonelyRadiosExcludeEachOther() {
            const row = make("Row { Radio { text: 'None'; checked: true } Radio { text: 'Cloud' } }");
            mouseClick(row.children[1]);
            compare([row.children[0].checked, row.children[1].checked], [false, true]);
            row.children[0].forceActiveFocus();
            keyClick(Qt.Key_Enter);
            compare([row.children[0].checked, row.children[1].checked], [true, false]);
            keyClick(Qt.Key_Enter);
            compare(row.children[0].checked, true);
        }

        // One stop for Tab, arrows move and wrap round, and the page may put the choice back.
        function test_radioGroup() {
            const row = make("Row { Button { text: 'before' } RadioGroup { width: 400; currentIndex: 3; "
                             + "model: [{ text: 'Play', value: 'play' }, { text: 'Edit', value: 'edit' }, "
                             + "{ text: 'Dash', value: 'dashboard' }, { text: 'Main', value: '' }] } "
                             + "Button { text: 'after' } }");
            const group = row.children[1];
            const activated = makeSpy(group, "activated");
            compare(group.currentValue, "");
            row.children[0].forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Right);
            compare(group.currentValue, "play");
            keyClick(Qt.Key_Left);
            compare(group.currentText, "Main");
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            compare(group.currentIndex, 1);
            compare(activated.count, 4);
            keyClick(Qt.Key_Tab);
            verify(row.children[2].activeFocus);
            keyClick(Qt.Key_Backtab);
            verify(findBy(group, "text", "Edit").activeFocus);
            mouseClick(findBy(group, "text", "Dash"));
            compare(group.currentValue, "dashboard");
            group.currentIndex = -1;
            compare(findBy(group, "text", "Dash").checked, false);
            compare(group.currentValue, undefined);
            compare(group.indexOfValue("edit"), 1);
            compare(group.indexOfValue("nothing"), -1);
        }

        function test_radioGroupRefusesByThePage() {
            const group = make("RadioGroup { width: 300; model: ['None', 'Cloud']; currentIndex: 0; "
                               + "onActivated: currentIndex = 0 }");
            mouseClick(findBy(group, "text", "Cloud"));
            compare(findBy(group, "text", "Cloud").checked, false);
            compare(findBy(group, "text", "None").checked, true);
        }

        function test_radioGroupWrapsWhereNarrow() {
            const group = make("RadioGroup { width: 120; model: ['None', 'Cloud', 'Network', 'Both'] }");
            verify(group.implicitWidth > 240);
            tryVerify(() => group.height > 2 * findBy(group, "text", "None").height);
            const last = findBy(group, "text", "Both");
            verify(last.mapToItem(group, last.width, 0).x <= 120);
        }

        function test_comboBox_data() {
            return [{ tag: "texts", model: "['Cut', 'Fade', 'Zoom']" },
                    { tag: "objects", model: "[{ t: 'Cut' }, { t: 'Fade' }, { t: 'Zoom' }]; textRole: 't'" },
                    { tag: "list model", model: "ListModel { ListElement { t: 'Cut' } ListElement { t: 'Fade' } "
                                                + "ListElement { t: 'Zoom' } } textRole: 't'" }];
        }

        function test_comboBox(row) {
            const box = make("ComboBox { x: 20; y: 20; model: " + row.model + " }");
            const activated = makeSpy(box, "activated");
            mouseMove(stage, 590, 390); // an entry below the mouse would be highlighted
            compare(box.displayText, "Cut");
            box.forceActiveFocus();
            keyClick(Qt.Key_Down);
            compare(box.displayText, "Fade");
            keyClick(Qt.Key_Return);
            tryVerify(() => box.popup.opened);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            tryVerify(() => !box.popup.visible);
            compare(box.displayText, "Zoom");
            mouseClick(box);
            tryVerify(() => box.popup.opened);
            mouseClick(findBy(box.popup.contentItem, "text", "Cut"));
            compare(box.displayText, "Cut");
            compare(activated.count, 3);
        }

        function test_switchTabs() {
            const tabs = make("SwitchTabs { x: 10; y: 10; model: ['Local', 'Store', { text: 'Cloud', "
                              + "faIcon: 'fa-cloud' }] }");
            const activated = makeSpy(tabs, "activated");
            settle(tabs);
            mouseClick(tabs, tabs.width - 15, 15);
            compare(tabs.currentText, "Cloud");
            keyClick(Qt.Key_Left);
            compare(tabs.currentText, "Store");
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Right);
            compare(tabs.currentIndex, 2);
            compare(activated.count, 3);
        }

        function test_slider() {
            const slider = make("Slider { x: 20; y: 20; width: 200; from: 10; to: 20; stepSize: 1; value: 15 }");
            const moved = makeSpy(slider, "moved");
            slider.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Right);
            compare(slider.value, 16);
            keyClick(Qt.Key_End);
            compare(slider.value, 20);
            keyClick(Qt.Key_Home);
            compare(slider.value, 10);
            mousePress(slider, 8, slider.height / 2);
            mouseMove(slider, 100, slider.height / 2);
            mouseRelease(slider, 100, slider.height / 2);
            fuzzyCompare(slider.value, 15, 1);
            verify(moved.count >= 4);
        }

        function test_spinBox_data() {
            return [
                { tag: "step up", keys: [Qt.Key_Up], value: 1.6 },
                { tag: "step down", keys: [Qt.Key_Down, Qt.Key_Down], value: 1.3 },
                { tag: "type", text: "7.25", keys: [Qt.Key_Return], value: 7.3 },
                { tag: "type with suffix", text: "4.0 s", keys: [Qt.Key_Return], value: 4 },
                { tag: "too much", text: "99", keys: [Qt.Key_Return], value: 10 },
                { tag: "not a number", text: "abc", keys: [Qt.Key_Return], value: 1.5 },
                { tag: "nothing", text: "", keys: [Qt.Key_Return], value: 1.5 }
            ];
        }

        function test_spinBox(row) {
            const box = make("SpinBox { x: 20; y: 20; decimals: 1; realValue: 1.5; realStep: 0.1; realTo: 10; "
                             + "suffix: ' s'; locale: Qt.locale('C') }");
            compare(box.displayText, "1.5 s");
            box.contentItem.forceActiveFocus();
            if (row.text !== undefined) {
                box.contentItem.selectAll();
                keyClick(Qt.Key_Delete);
                row.text.split("").forEach(letter => keyClick(letter));
            }
            row.keys.forEach(key => keyClick(key));
            fuzzyCompare(box.realValue, row.value, 1e-9);
            compare(box.displayText, box.textFromValue(box.value, box.locale));
        }

        function test_spinBoxFollowsItsSource() {
            const box = make("SpinBox { realTo: 2000; realValue: 1920; locale: Qt.locale('C') }");
            const modified = makeSpy(box, "realModified");
            mouseClick(box, box.width - 8, 6);
            compare(box.realValue, 1921);
            compare(modified.count, 1);
            box.realValue = 1080;
            compare(box.value, 1080);
            compare(modified.count, 1);
        }
    }
}
