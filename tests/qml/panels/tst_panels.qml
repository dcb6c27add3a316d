// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.Editor 1.0

// Every panel, every control of it: moved by mouse and keys, it changes the live item, the source, the map and the
// history once, as the contract of panels says.
PanelCase {
    id: test
    name: "Panels"

    function test_files() {
        panelRows().forEach(row => {
            const file = row.tag === "GridOrganizer" ? "GridOrgnanizerEditor.qml" : row.tag + "Editor.qml";
            const text = fixture.source(file);
            verify(/^Item \{\n    id: root\n\n    property bool radEditor: false\n    property string size: /m.test(text), file);
        });
        withoutPanel.concat(["GridOrganizer"]).forEach(name => compare(fixture.source(name + "Editor.qml"), "", name));
    }

    function test_controls_data() {
        return panelRows();
    }
    function test_controls(data) {
        openComponent(data.tag);
        openSections();
        const rows = all(panel, item => item.name !== undefined && item.form !== undefined && item.value !== undefined
                                        && item.visible && driverOf(item) !== null);
        verify(rows.length > 0);
        const names = rows.filter(row => row.code === undefined).map(row => row.name);
        rows.forEach(row => drive(row));
        compare(valueAfterReload(0, names), names.map(name => test.asText(panelForm().value(name))));
        fixture.takeWarnings();
    }

    function cleanup() {
        fixture.takeWarnings();
    }

    function panelForm() {
        return all(panel, item => item.commitAll !== undefined)[0];
    }

    // Moves one control and looks at what came of it.
    function drive(row) {
        const form = row.form;
        const before = asText(form.value(row.name));
        const sourceBefore = CAPI.editedSourceCode();
        panel.y = 100 - row.mapToItem(panel, 0, 0).y;
        waitForRendering(panel);
        driverOf(row)(row);
        tryVerify(() => test.states.count > 0, 2000, row.name + " is written");
        const after = asText(form.value(row.name));
        // A handler runs at its time; the live item does not show it.
        verify((after === before) === (row.code !== undefined), row.name + " of the live item was " + before);
        verify(CAPI.editedSourceCode() !== sourceBefore);
        compare(takeChanges(), [1, 1], row.name);
        verify(Ejs.propertyEdited && Ejs.codeEdited);
        verifyMap();
        if (row.code === undefined)
            compare(valueAfterReload(0, [row.name]), [after], CAPI.editedSourceCode());
        Ejs.propertyEdited = Ejs.codeEdited = false;
        // What the media player and the network say is not of interest here.
        compare(fixture.takeWarnings().filter(text => /\.(qml|js):/.test(text)), []);
    }

    // The function that moves the control of `row`; null for a row that has no control of its own.
    function driverOf(row) {
        const kinds = { put: row.put && row.isPlain !== undefined ? driveEntries : row.code !== undefined ? driveCode : driveFile,
                        input: driveText, slider: driveSlider, button: driveColor, area: driveLines };
        if (row.box)
            return row.box.realValue !== undefined ? driveNumber : driveChoice;
        if (row.toggled !== undefined && row.checked !== undefined)
            return driveCheck;
        const kind = Object.keys(kinds).find(name => row[name] !== undefined);
        return kind ? kinds[kind] : null;
    }

    function driveText(row) {
        mouseClick(row.input);
        keyClick(Qt.Key_A, Qt.ControlModifier);
        "Qx1".split("").forEach(letter => keyClick(letter));
        compare(test.states.count, 0);
        keyClick(Qt.Key_Return);
    }

    function driveLines(row) {
        mouseClick(row.area);
        "Zw".split("").forEach(letter => keyClick(letter));
        compare(test.states.count, 0);
        keyClick(Qt.Key_Return);
        keyClick("y");
        leave();
    }

    function driveCode(row) {
        mouseClick(row.area);
        "a=1;b=2".split("").forEach(letter => keyClick(letter));
        leave();
    }

    // Takes the keyboard away, as a click elsewhere does.
    function leave() {
        elsewhere.forceActiveFocus();
    }

    function driveNumber(row) {
        const up = row.box.realValue + row.box.realStep <= row.box.realTo;
        row.box.forceActiveFocus();
        keyClick(up ? Qt.Key_Up : Qt.Key_Down);
        compare(test.states.count, 0);
        leave();
    }

    function driveSlider(row) {
        const slider = row.slider;
        const x = slider.leftPadding + slider.visualPosition * slider.availableWidth;
        const aim = slider.width * (slider.visualPosition < 0.5 ? 0.8 : 0.2);
        mousePress(slider, x, slider.height / 2);
        mouseMove(slider, (x + aim) / 2, slider.height / 2);
        mouseMove(slider, aim, slider.height / 2);
        compare(test.states.count, 0);
        mouseRelease(slider, aim, slider.height / 2);
    }

    function driveColor(row) {
        mouseClick(row.button);
        tryCompare(row.button.popup, "opened", true);
        waitForRendering(row.button.popup.contentItem);
        const swatches = all(row.button.popup.contentItem, item => item.sample !== undefined && item.selected === false);
        mouseClick(swatches[0]);
        compare(test.states.count, 0);
        keyClick(Qt.Key_Escape);
        tryCompare(row.button.popup, "visible", false);
    }

    function driveCheck(row) {
        mouseClick(row);
    }

    function driveChoice(row) {
        row.box.forceActiveFocus();
        keyClick(row.box.currentIndex < row.box.count - 1 ? Qt.Key_Down : Qt.Key_Up);
    }

    function driveFile(row) {
        const name = row.kind + (row.kind === "picture" ? ".png" : row.kind === "video" ? ".mp4" : ".json");
        CAPI.writeToFile("{}", "chosen/feed.json");
        if (row.kind === "video")
            fixture.makeClip("chosen/video.mp4", "red", 0.2);
        fixture.makePicture("chosen/picture.png", "red");
        CAPI.removeFile("images/" + name);
        mouseClick(all(row, item => item.objectName === "choose")[0]);
        const picker = all(panel, item => item.chosen !== undefined)[0].item;
        tryCompare(picker, "opened", true);
        picker.folder = fixture.url("chosen");
        tryCompare(picker.contentItem, "currentFile", "");
        picker.offer(fixture.url("chosen/" + name));
        tryCompare(picker, "visible", false);
        compare(row.path, "images/" + name);
        verify(CAPI.fileExist("images/" + name));
        verify(CAPI.dirmap()["images/" + name] > 0);
        fixture.takeWarnings();
    }

    function driveEntries(row) {
        mouseClick(all(row, item => item.objectName === "remove" && item.visible)[0]);
    }

    Item {
        id: elsewhere
    }
}
