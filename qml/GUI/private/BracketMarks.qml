// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Frames the bracket beside the cursor of an edit and the one that belongs to it.
Repeater {
    id: root

    property Item edit
    property QtObject highlighter

    // Reads the text, so that it is looked at again when the text changes.
    function pairAt(cursor, text) {
        for (const position of [cursor - 1, cursor]) {
            const partner = text === "" ? -1 : highlighter.matchingBracket(edit, position);
            if (partner >= 0)
                return [position, partner];
        }
        return [];
    }

    model: edit && edit.activeFocus ? pairAt(edit.cursorPosition, edit.text) : []

    Rectangle {
        readonly property rect place: root.edit.positionToRectangle(modelData)
        readonly property rect end: root.edit.positionToRectangle(modelData + 1)

        x: place.x - dp
        y: place.y
        z: -1
        width: end.x - place.x + 2 * dp
        height: place.height
        radius: 2 * dp
        color: bs["input-border-focus"]
        opacity: 0.45
    }
}
