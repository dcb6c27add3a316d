// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "transitions.js" as Transitions

/// One transition: moves two slides from "outgoing is shown" to "incoming is shown".
NumberAnimation {
    id: root

    property Item show
    property Item incoming
    property Item outgoing
    /// Name of the transition.
    property string name: "fade"
    property real progress: 0

    target: root
    property: "progress"
    from: 0
    to: 1
    duration: Math.max(0, root.show.transTime)
    easing.type: Easing.InOutCubic
    onProgressChanged: {
        if (!root.running || !root.incoming || !root.outgoing)
            return;
        const at = Transitions.placement(root.name, root.progress, root.show.width, root.show.height);
        Transitions.place(root.incoming, at.incoming);
        Transitions.place(root.outgoing, at.outgoing);
    }
}
