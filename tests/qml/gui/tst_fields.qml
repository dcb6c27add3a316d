// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtTest 1.15
import Nuvex.GUI 1.0 as BGUI
import "qrc:/Nuvex/GUI/private/indent.js" as Indent

Item {
    width: 700
    height: 500

    GuiTestCase {
        name: "Fields"

        function type(text) {
            for (const letter of text)
                keyClick(letter === "\n" ? Qt.Key_Return : letter);
        }

        function test_input() {
            const input = make("Input { x: 20; y: 20; clearable: true; placeholderText: 'Name' }");
            const accepted = makeSpy(input, "accepted");
            mouseClick(input);
            type("Lobby");
            keyClick(Qt.Key_Return);
            compare(input.text, "Lobby");
            compare(accepted.count, 1);
            mouseClick(input, input.width - 15, input.height / 2);
            compare(input.text, "");
            verify(input.activeFocus);
        }

        function test_inputErrorStandsBelow() {
            const input = make("Input { text: 'x' }");
            const height = input.height;
            input.error = "This name is taken already";
            const message = findBy(input, "text", input.error);
            verify(message.visible);
            verify(message.y >= height);
            verify(input.height >= message.y + message.height);
            input.error = "";
            compare(input.height, height);
        }

        function test_inputTextIsNotClipped_data() {
            return ["xsmall", "small", "base", "large", "xlarge"].map(size => ({ tag: size }));
        }

        function test_inputTextIsNotClipped(row) {
            const input = make("Input { text: 'Ågjp|'; size: '" + row.tag + "' }");
            verify(input.height - input.topPadding - input.bottomPadding >= input.contentHeight);
        }

        function test_textAreaScrollsToTheCursor() {
            const area = make("TextArea { width: 200; height: 80 }");
            area.forceActiveFocus();
            type("one\ntwo\nthree\nfour\nfive\nsix\nseven");
            compare(area.text.split("\n").length, 7);
            verify(area.scroll > 0);
        }

        function test_sourceIndents_data() {
            return [
                { tag: "Tab", text: "ab", at: [1, 1], keys: [Qt.Key_Tab], expected: "a    b" },
                { tag: "Tab on lines", text: "a\n\nb\nc", at: [0, 4], keys: [Qt.Key_Tab], expected: "    a\n\n    b\nc" },
                { tag: "Backtab", text: "      a\n\tb\nc", at: [0, 12], keys: [Qt.Key_Backtab], expected: "  a\nb\nc" },
                { tag: "Enter keeps", text: "    a", at: [5, 5], keys: [Qt.Key_Return], expected: "    a\n    " },
                { tag: "Enter in a block", text: "Item {", at: [6, 6], keys: [Qt.Key_Return], expected: "Item {\n    " },
                { tag: "closing brace", text: "Item {\n    ", at: [11, 11], keys: ["}"], expected: "Item {\n}" },
                { tag: "brace in a line", text: "    a ", at: [6, 6], keys: ["}"], expected: "    a }" }
            ];
        }

        function test_sourceIndents(row) {
            const area = make("QMLTextArea { width: 400; height: 200 }");
            area.text = row.text;
            area.forceActiveFocus();
            area.edit.select(row.at[0], row.at[1]);
            row.keys.forEach(key => keyClick(key));
            compare(area.text, row.expected);
            area.text = row.text;
            area.readOnly = true;
            row.keys.forEach(key => keyClick(key));
            compare(area.text, row.text);
        }

        function test_commentTurnsBack() {
            const area = make("QMLTextArea { width: 400; height: 200; text: 'a {\\n    b: 1\\n\\n}' }");
            const before = area.text;
            area.forceActiveFocus();
            area.edit.selectAll();
            keyClick(Qt.Key_Slash, Qt.ControlModifier);
            compare(area.text, "// a {\n    // b: 1\n\n// }");
            keyClick(Qt.Key_Slash, Qt.ControlModifier);
            compare(area.text, before);
        }

        function test_lines_data() {
            return [
                { tag: "begin", position: 0, line: 1, start: 0 }, { tag: "first", position: 2, line: 1, start: 0 },
                { tag: "second", position: 3, line: 2, start: 3 }, { tag: "last", position: 4, line: 3, start: 4 },
                { tag: "beyond", position: 99, line: 3, start: 4 }
            ];
        }

        function test_lines(row) {
            compare(Indent.lineAt("ab\n\nc", row.position), row.line);
            compare(Indent.lineStart("ab\n\nc", row.line), row.start);
            compare(Indent.lineStart("ab\n\nc", 50), 4);
        }

        function test_sourceIsColoured() {
            const area = make("QMLTextArea { width: 400; height: 200; text: 'Rectangle { }' }");
            settle(area);
            const image = grabImage(area);
            let green = 0;
            for (let x = 40; x < 160; ++x)
                for (let y = 5; y < 30; ++y)
                    green += image.green(x, y) > image.red(x, y) + 60;
            verify(green > 20, green);
        }

        // Positions that have a frame, in "Item { a: [1] }".
        function framed(area) {
            const found = [];
            for (let i = 0; i < area.edit.children.length; ++i) {
                const mark = area.edit.children[i];
                if (mark.place !== undefined)
                    found.push(area.edit.positionAt(mark.x + mark.width / 2 - 2, mark.y + 2));
            }
            return found.sort((a, b) => a - b);
        }

        function test_bracketsBelongTogether_data() {
            return [
                { tag: "before the brace", at: 5, marks: [5, 14] }, { tag: "behind the brace", at: 6, marks: [5, 14] },
                { tag: "at the end", at: 15, marks: [5, 14] }, { tag: "square", at: 13, marks: [10, 12] },
                { tag: "no bracket", at: 2, marks: [] }
            ];
        }

        function test_bracketsBelongTogether(row) {
            const area = make("QMLTextArea { width: 400; height: 200; text: 'Item { a: [1] }' }");
            area.forceActiveFocus();
            wait(0);
            area.cursorPosition = 1;
            area.cursorPosition = row.at;
            compare(framed(area), row.marks);
            area.edit.focus = false;
            compare(framed(area), []);
        }

        function test_errorLineIsMarkedAndShown() {
            const area = make("QMLTextArea { width: 400; height: 120; errorLine: 40; text: Array(60).join('x\\n') }");
            area.goToLine(40);
            compare(area.currentLine, 40);
            tryVerify(() => area.scroll > 0);
            const label = findBy(area, "text", "40");
            verify(label && label.visible);
            compare(label.parent.color, BGUI.Theme.danger);
        }

        function test_toolBar() {
            const column = make("Column { width: 600; TextToolBar { width: 600; target: area } "
                                + "QMLTextArea { id: area; width: 600; height: 200 } }");
            const area = column.children[1];
            const tool = name => findBy(column, "objectName", name);
            compare([tool("undo").enabled, tool("cut").enabled], [false, false]);
            area.forceActiveFocus();
            type("hello Hello");
            mouseClick(tool("undo"));
            compare(area.text, "");
            mouseClick(tool("redo"));
            compare(area.text, "hello Hello");
            area.edit.select(0, 6);
            mouseClick(tool("cut"));
            compare(area.text, "Hello");
            verify(area.edit.activeFocus);
            area.cursorPosition = 5;
            mouseClick(tool("paste"));
            compare(area.text, "Hellohello ");
            mouseClick(tool("comment"));
            compare(area.text, "// Hellohello ");
            area.readOnly = true;
            compare([tool("undo").enabled, tool("paste").enabled, tool("find").enabled], [false, false, true]);
        }

        function test_search() {
            const column = make("Column { width: 600; TextToolBar { width: 600; target: area } "
                                + "TextArea { id: area; width: 600; height: 200; text: 'one Two\\ntwo three' } }");
            const edit = column.children[1].edit;
            verify(!findBy(column, "objectName", "comment").visible);
            column.children[1].forceActiveFocus();
            keyClick(Qt.Key_F, Qt.ControlModifier);
            type("two");
            const found = [];
            for (const modifier of [0, 0, 0, Qt.ShiftModifier]) {
                keyClick(Qt.Key_Return, modifier);
                found.push(edit.selectionStart);
            }
            compare(found, [4, 8, 4, 8]);
            const field = findBy(column, "placeholderText", "Find");
            type("x");
            keyClick(Qt.Key_Return);
            verify(field.error !== "");
            keyClick(Qt.Key_Escape);
            verify(!field.visible);
            verify(edit.activeFocus);
        }
    }
}
