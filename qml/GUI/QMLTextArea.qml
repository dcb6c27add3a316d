// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.0
import "private"
import "private/indent.js" as Indent

/// QML source: coloured, with line numbers. Tab indents by four columns and Ctrl+Tab leaves; Enter keeps the
/// indentation; a closing brace typed on a blank line takes one step back. `errorLine` (from 1; 0 for none) marks a
/// line.
TextArea {
    id: root

    property int errorLine: 0

    // The line of the cursor, from 1.
    readonly property int currentLine: Indent.lineAt(text, cursorPosition)

    // The text with each character as it is; `text` has spaces in place of those that keep words together.
    function exactText() {
        return highlighter.exactText(edit);
    }

    function goToLine(line) {
        cursorPosition = Indent.lineStart(text, line);
        forceActiveFocus();
    }

    function insertBreak() {
        insertText("\n" + Indent.leading(text, cursorPosition));
    }

    function closeBlock() {
        const from = Math.max(Indent.lineStart(text, currentLine), cursorPosition - Indent.step.length);
        edit.remove(from, cursorPosition);
        edit.insert(from, "}");
    }

    function insertText(piece) {
        edit.remove(edit.selectionStart, edit.selectionEnd);
        edit.insert(edit.cursorPosition, piece);
    }

    // Shifts the lines of the selection by so many steps, to the left when negative.
    function indent(steps) {
        replaceLines(line => Indent.shifted(line, steps));
    }

    // Turns the lines of the selection into comments; when all are comments, back.
    function toggleComment() {
        replaceLines(Indent.commenter(Indent.linesIn(text, edit.selectionStart, edit.selectionEnd)));
    }

    function replaceLines(change) {
        const range = Indent.wholeLines(text, edit.selectionStart, edit.selectionEnd);
        const before = text.substring(range.start, range.end);
        const after = before.split("\n").map(change).join("\n");
        if (after === before)
            return;
        edit.remove(range.start, range.end);
        edit.insert(range.start, after);
        edit.select(range.start, range.start + after.length);
    }

    function handleKey(event) {
        event.accepted = !readOnly;
        if (readOnly)
            return;
        const hasSelection = edit.selectionStart !== edit.selectionEnd;
        const isPlain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier));
        if (event.key === Qt.Key_Backtab && isPlain)
            indent(-1);
        else if (event.key === Qt.Key_Tab && isPlain)
            hasSelection ? indent(1) : insertText(Indent.step);
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && isPlain)
            insertBreak();
        else if (event.key === Qt.Key_BraceRight && Indent.isBlankBefore(text, cursorPosition) && !hasSelection)
            closeBlock();
        else if (event.key === Qt.Key_Slash && event.modifiers & Qt.ControlModifier)
            toggleComment();
        else
            event.accepted = false;
    }

    wrapMode: TextEdit.NoWrap
    textFormat: TextEdit.PlainText
    fontFamily: Theme.codeFamily
    gutterWidth: Math.max(3, String(edit.lineCount).length) * Theme.fontSize(size) * 0.65 + 1.5 * Theme.unit
    keyFilter: handleKey
    Component.onCompleted: highlighter.setHighlighter(edit)

    QMLSyntaxHighlighter {
        id: highlighter
    }

    BracketMarks {
        parent: root.edit
        edit: root.edit
        highlighter: highlighter
    }

    LineNumbers {
        anchors.fill: parent
        edit: root.edit
        scroll: root.scroll
        currentLine: root.currentLine
        errorLine: root.errorLine
    }
}
