// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// A field that looks for a text in an edit, whatever the case, and goes round at the ends. Enter finds the next place,
/// Shift+Enter the one before, Escape closes it.
Input {
    id: root

    property Item edit
    property bool isMissing: false

    function open() {
        if (edit.selectedText !== "")
            text = edit.selectedText;
        visible = true;
        forceActiveFocus(Qt.ShortcutFocusReason);
        selectAll();
    }

    function close() {
        visible = false;
        edit.forceActiveFocus();
    }

    // Where the text next stands, from the selection on; -1: nowhere.
    function placeAfter(haystack, needle) {
        const ahead = haystack.indexOf(needle, edit.selectionEnd);
        return ahead >= 0 ? ahead : haystack.indexOf(needle);
    }

    function placeBefore(haystack, needle) {
        const behind = edit.selectionStart > 0 ? haystack.lastIndexOf(needle, edit.selectionStart - 1) : -1;
        return behind >= 0 ? behind : haystack.lastIndexOf(needle);
    }

    function find(backwards) {
        const haystack = edit.getText(0, edit.length).toLowerCase();
        const needle = text.toLowerCase();
        const place = backwards ? placeBefore(haystack, needle) : placeAfter(haystack, needle);
        isMissing = place < 0 && needle !== "";
        if (place >= 0)
            edit.select(place, place + needle.length);
    }

    visible: false
    width: 22 * Theme.unit
    faIcon: "fa-search"
    placeholderText: qsTr("Find")
    error: isMissing ? qsTr("Not found") : ""
    onTextChanged: isMissing = false

    Keys.onReturnPressed: find(event.modifiers & Qt.ShiftModifier)
    Keys.onEnterPressed: find(event.modifiers & Qt.ShiftModifier)
    Keys.onEscapePressed: close()

    Shortcut {
        sequence: StandardKey.Find
        enabled: root.edit !== null && (root.edit.activeFocus || root.parent.activeFocus)
        onActivated: root.open()
    }
}
