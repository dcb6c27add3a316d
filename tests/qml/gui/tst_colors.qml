// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

Item {
    width: 500
    height: 400

    GuiTestCase {
        name: "Colours"

        function same(color, name) {
            compare(String(color), name);
        }

        // 224 by 128: saturation to the right, brightness upwards.
        function planeOf(picker) {
            return findBy(picker, "implicitWidth", 224);
        }

        function test_pickerPlane() {
            const picker = make("ColorPicker { color: '#ff0000' }");
            const picked = makeSpy(picker, "picked");
            const plane = planeOf(picker);
            mouseClick(plane, 112, 64);
            fuzzyCompare(picker.color.hsvSaturation, 0.5, 0.02);
            fuzzyCompare(picker.color.hsvValue, 0.5, 0.02);
            keyClick(Qt.Key_Right, Qt.ShiftModifier);
            fuzzyCompare(picker.color.hsvSaturation, 0.6, 0.02);
            keyClick(Qt.Key_Down);
            fuzzyCompare(picker.color.hsvValue, 0.49, 0.02);
            mousePress(plane, 10, 10);
            mouseMove(plane, 500, -50);
            mouseRelease(plane, 500, -50);
            same(picker.color, "#ff0000");
            verify(picked.count >= 4);
        }

        function test_hueSurvivesGreyAndBlack() {
            const picker = make("ColorPicker { color: '#0000ff' }");
            picker.color = "black";
            fuzzyCompare(picker.hue, 2 / 3, 0.01);
            compare(picker.saturation, 1);
            picker.color = "#808080";
            fuzzyCompare(picker.hue, 2 / 3, 0.01);
            compare(picker.saturation, 0);
        }

        function test_pickerHexadecimal_data() {
            return [{ tag: "#00ff00", color: "#00ff00" }, { tag: "#abc", color: "#aabbcc" },
                    { tag: "#80ff0000", color: "#80ff0000" }, { tag: "#12", color: "#428bca" }];
        }

        function test_pickerHexadecimal(row) {
            const picker = make("ColorPicker { color: '#428bca' }");
            const field = findBy(picker, "text", "#428bca");
            field.forceActiveFocus();
            field.selectAll();
            row.tag.split("").forEach(letter => keyClick(letter));
            keyClick(Qt.Key_Return);
            same(picker.color, row.color);
            planeOf(picker).forceActiveFocus();
            compare(field.text, row.color);
        }

        function test_colorButton() {
            const button = make("ColorButton { x: 10; y: 10; color: '#428bca' }");
            const picked = makeSpy(button, "picked");
            compare(button.text, "#428BCA");
            button.forceActiveFocus();
            keyClick(Qt.Key_Return);
            tryVerify(() => button.popup.opened);
            mouseClick(findBy(button.popup.contentItem, "sample", Qt.rgba(0, 0, 0, 1)));
            same(button.color, "#000000");
            compare(picked.count, 1);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !button.popup.visible);
            verify(button.activeFocus);
        }
    }
}
