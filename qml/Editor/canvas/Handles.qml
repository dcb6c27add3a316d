// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "limits.js" as Limits

/// The handles of the one selected item: those whose dragging has an effect.
ItemSpace {
    id: root

    property Item frame
    /// What decides about the item's place and size; see EditingDesk.placingOf().
    property var placing: ({})

    readonly property string pointer: frame.desk.forTouch ? "touch" : "mouse"
    readonly property real shortSide: Limits.shortSide[pointer] * dp

    function isWanted(across, down) {
        const isFree = (across === 0 || (!placing.width && !(across < 0 && placing.x)))
                    && (down === 0 || (!placing.height && !(down < 0 && placing.y)));
        const hasRoom = (across !== 0 || width * unit > shortSide) && (down !== 0 || height * unit > shortSide);
        return isFree && hasRoom;
    }

    Repeater {
        model: [[-1, -1], [0, -1], [1, -1], [-1, 0], [1, 0], [-1, 1], [0, 1], [1, 1]]

        Handle {
            objectName: "handle " + modelData
            frame: root.frame
            item: root.target
            across: modelData[0]
            down: modelData[1]
            pointer: root.pointer
            unit: root.unit
            visible: root.isWanted(across, down)
        }
    }
}
