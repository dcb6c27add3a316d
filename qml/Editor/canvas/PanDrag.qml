// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Moves the document on the canvas.
QtObject {
    id: root

    property Item viewport
    property point last

    function begin(point) {
        last = point;
        return true;
    }

    function step(point, modifiers) {
        viewport.pan(point.x - last.x, point.y - last.y);
        last = point;
    }

    function end() {}

    function cancel() {}
}
