// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Moves items that are created inside a container, as the editor does, to the layout that its declared items are in.
Item {
    id: root

    property Item from
    property Item to
    // The parts of the container itself.
    property var own: null

    visible: false
    Component.onCompleted: {
        const parts = [];
        for (let i = 0; i < from.children.length; ++i)
            parts.push(from.children[i]);
        own = parts;
    }

    Connections {
        target: root.from
        function onChildrenChanged() {
            for (let i = root.own === null ? -1 : root.from.children.length - 1; i >= 0; --i) {
                if (root.own.indexOf(root.from.children[i]) < 0)
                    root.from.children[i].parent = root.to;
            }
        }
    }
}
