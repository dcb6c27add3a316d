// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../private/liveitems.js" as LiveItems

/// What the designer has hidden or locked. It holds in the editor alone and is not in the source: a hidden item is not
/// drawn, and neither it nor a locked one is met by the pointer or moved. What lies in such an item goes with it.
QtObject {
    id: root

    property var desk
    /// The live items that are hidden, and those that are locked: of one that shows several times, each.
    property var hidden: []
    property var locked: []
    /// Their numbers.
    readonly property var hiddenElements: hidden.map(item => item.element)
    readonly property var lockedElements: locked.map(item => item.element)

    // Hides what has that number, or shows it again.
    function toggleHidden(element) {
        hidden = toggled(hidden, element);
    }

    function toggleLocked(element) {
        locked = toggled(locked, element);
    }

    function toggled(items, element) {
        const rest = items.filter(item => item.element !== element);
        if (rest.length < items.length)
            return rest;
        const found = LiveItems.allNumbered(desk.live.root, element);
        if (found.length === 0)
            desk.say(qsTr("Only items that show on the page can be hidden or locked."));
        return items.concat(found);
    }

    function isHidden(item) {
        return isAround(hidden, item);
    }

    function isLocked(item) {
        return isAround(locked, item);
    }

    /// Whether the pointer meets the item.
    function isFree(item) {
        return !isHidden(item) && !isLocked(item);
    }

    function isAround(holders, item) {
        for (let step = holders.length > 0 ? item : null; step; step = step.parent) {
            if (holders.indexOf(step) >= 0)
                return true;
        }
        return false;
    }

    function clear() {
        [hidden, locked] = [[], []];
    }

    /// Where they stand in the source; see Selection.placesOf().
    function places() {
        return [hidden, locked].map(items => Array.from(new Set(desk.selection.placesOf(items))));
    }

    // Hides and locks what stood at `places` of the source `before`.
    function restore(places, before) {
        [hidden, locked] = places.map(list => desk.selection.foundAt(list, before).reduce((all, item) =>
            all.concat(LiveItems.allNumbered(desk.live.root, item.element)), []));
    }
}
