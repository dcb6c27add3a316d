// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "geometry.js" as Geometry

/// Selects what a rubber band touches: the items of the document's top level, or of the item in which it begins.
QtObject {
    id: root

    property Item frame
    property bool isOn: false
    property point from
    property point to
    property var kept: []

    /// The band on the canvas.
    readonly property rect band: Geometry.between(from, to)

    // With `isAdding` what is selected stays selected.
    function begin(point, isAdding) {
        kept = isAdding ? frame.selection : [];
        [from, to] = [point, point];
        isOn = true;
        return true;
    }

    function step(point, modifiers) {
        to = point;
    }

    function end() {
        isOn = false;
        const touched = frame.desk.selection.within(frame.myfill, item => touches(item));
        frame.desk.selection.set(kept.concat(touched.filter(item => kept.indexOf(item) < 0)));
    }

    function cancel() {
        isOn = false;
    }

    function touches(item) {
        return Geometry.overlap(band, frame.mapFromItem(item, 0, 0, item.width, item.height));
    }
}
