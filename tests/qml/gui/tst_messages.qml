// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15

Item {
    width: 500
    height: 400

    GuiTestCase {
        name: "Messages"

        function test_busyIndicatorTakesPresses() {
            const item = make("Item { anchors.fill: parent; property Item button: Button { parent: item; text: 'x' } "
                              + "property Item busy: CustomBuzyInd {} id: item; children: [button, busy] }");
            const clicked = makeSpy(item.button, "clicked");
            mouseClick(item.button);
            compare(clicked.count, 1);
            item.busy.start("Loading...");
            verify(item.busy.visible);
            mouseClick(item.button);
            compare(clicked.count, 1);
            item.busy.finish();
            verify(!item.busy.visible);
        }

        function test_busyIndicatorFits_data() {
            return [{ tag: "no room yet", width: 0 }, { tag: "narrow", width: 160 }, { tag: "wide", width: 1200 }];
        }

        function test_busyIndicatorFits(row) {
            const item = make("Item { width: " + row.width + "; height: 300; CustomBuzyInd { running: true; progress: "
                              + "0.5; text: 'Importing an archive with quite a long name.zip' } }");
            settle(stage);
            const label = findBy(item, "horizontalAlignment", Text.AlignHCenter);
            verify(row.width === 0 || label.width <= row.width - 64, label.width);
            item.width = 400;
            settle(stage);
            verify(label.width >= label.contentWidth);
        }

        function test_busyIndicatorEndsWithAMessage() {
            const busy = make("CustomBuzyInd { messageTime: 50; text: 'Please wait...'; running: true }");
            const finished = makeSpy(busy, "finished");
            verify(findBy(busy, "text", "Please wait...").visible);
            busy.finish("Disk full", true);
            compare(busy.running, false);
            verify(findBy(busy, "text", "Disk full").visible);
            verify(findBy(busy, "faIcon", "fa-exclamation-circle").visible);
            tryCompare(busy, "visible", false);
            compare(finished.count, 1);
            busy.finish("Saved");
            busy.start("Again");
            wait(0);
            compare(findBy(busy, "text", "Again").visible, true);
            compare(busy.ending, false);
        }

        function test_messageBox_data() {
            return [
                { tag: "Enter accepts", key: Qt.Key_Return, type: "primary", accepted: true },
                { tag: "Space accepts", key: Qt.Key_Space, type: "primary", accepted: true },
                { tag: "Escape rejects", key: Qt.Key_Escape, type: "primary", accepted: false },
                { tag: "danger: Enter rejects", key: Qt.Key_Return, type: "danger", accepted: false },
                { tag: "mouse accepts", press: "Yes", type: "danger", accepted: true },
                { tag: "mouse rejects", press: "No", type: "primary", accepted: false }
            ];
        }

        function test_messageBox(row) {
            const box = make("MessageBox { text: 'Remove it?'; acceptText: 'Yes'; rejectText: 'No'; type: '"
                             + row.type + "' }");
            const accepted = makeSpy(box, "accepted");
            const rejected = makeSpy(box, "rejected");
            box.open();
            tryCompare(box, "opened", true);
            if (row.press)
                mouseClick(findBy(box.contentItem, "text", row.press));
            else
                keyClick(row.key);
            tryCompare(box, "visible", false);
            compare([accepted.count, rejected.count], row.accepted ? [1, 0] : [0, 1]);
        }

        function test_noticeClosesAndTakesNoRoom() {
            const column = make("Column { width: 200; Notice { closable: true; text: 'Cannot read the folder: "
                                + "permission denied' } Button { text: 'below' } }");
            settle(column);
            verify(column.children[1].y >= column.children[0].height);
            verify(column.children[0].height > 50);
            mouseClick(findBy(column, "faIcon", "fa-times"));
            tryVerify(() => column.children[1].y === 0);
        }

        function test_emptyStateKeepsItsWidth() {
            const empty = make("EmptyState { width: 260; title: 'No projects yet'; text: 'Import an archive, or make "
                               + "a project in the editor.'; Button { text: 'Import' } }");
            settle(empty);
            verify(findBy(empty, "text", empty.text).lineCount > 1);
            const button = findBy(empty, "text", "Import");
            verify(button.mapToItem(empty, button.width, 0).x <= empty.width);
        }

        function test_pageHeader() {
            const header = make("PageHeader { width: 300; title: 'A title that is far too long for this header'; "
                                + "subtitle: 'x'; ActionButton { faIcon: 'fa-cog'; onDark: true } }");
            const back = makeSpy(header, "back");
            mouseClick(findBy(header, "faIcon", "fa-arrow-left"));
            compare(back.count, 1);
            const title = findBy(header, "truncated", true);
            const tool = findBy(header, "faIcon", "fa-cog");
            verify(title.mapToItem(header, title.width, 0).x <= tool.mapToItem(header, 0, 0).x);
        }

        function test_formRowBreaksWhereNarrow_data() {
            return [{ tag: "wide", width: 480, below: false }, { tag: "narrow", width: 240, below: true }];
        }

        function test_formRowBreaksWhereNarrow(row) {
            const form = make("FormRow { width: " + row.width + "; label: 'Name'; Input { objectName: 'field'; "
                              + "width: parent.width } }");
            const field = findBy(form, "objectName", "field");
            compare(field.mapToItem(form, 0, 0).x === 0, row.below);
            fuzzyCompare(field.mapToItem(form, field.width, 0).x, row.width, 1);
            verify(form.implicitHeight >= field.mapToItem(form, 0, field.height).y);
        }
    }
}
