// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15

/// A column of content that scrolls: by mouse and touch, by the keys for pages, and by itself to what gets the
/// keyboard.
Flickable {
    id: root

    // Room between what has the keyboard and the edge.
    property real gap: 2 * Theme.unit

    readonly property Item focusedItem: Window.activeFocusItem

    function isInside(item) {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === contentItem)
                return true;
        }
        return false;
    }

    function scrollTo(y) {
        contentY = Math.max(0, Math.min(y, contentHeight - height));
    }

    function reveal(item) {
        const y = item.mapToItem(contentItem, 0, 0).y;
        const below = y + Math.min(item.height, height - 2 * gap) + gap - height;
        scrollTo(Math.max(below, Math.min(contentY, y - gap)));
    }

    // Scrolls as the key says; false when it is no key for that.
    function scrollByKey(key) {
        const steps = {};
        steps[Qt.Key_Up] = -8 * Theme.unit;
        steps[Qt.Key_Down] = 8 * Theme.unit;
        steps[Qt.Key_PageUp] = -0.9 * height;
        steps[Qt.Key_PageDown] = 0.9 * height;
        steps[Qt.Key_Home] = -contentHeight;
        steps[Qt.Key_End] = contentHeight;
        if (steps[key] !== undefined)
            scrollTo(contentY + steps[key]);
        return steps[key] !== undefined;
    }

    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    onFocusedItemChanged: {
        if (focusedItem && isInside(focusedItem))
            reveal(focusedItem);
    }

    Keys.onPressed: event.accepted = interactive && scrollByKey(event.key)

    T.ScrollBar.vertical: ScrollBar {}
}
