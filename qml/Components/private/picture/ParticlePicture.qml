// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Window 2.15

/// Looks after the picture of particles, unseen: a glowing dot takes the place of one that is missing, broken or larger
/// than any particle can be. Their painter has to have drawn some empty frames with it: particles that are there before
/// stay white for their whole life.
Picture {
    id: root

    readonly property bool isUsable: status === Image.Ready && Math.max(implicitWidth, implicitHeight) <= 1024
    /// The address to draw particles with.
    readonly property url dot: isUsable ? address : "qrc:///Nuvex/Components/icons/particle.png"
    property int frames: 0
    /// Whether particles may come.
    readonly property bool isReady: settled && frames >= 4

    width: 0
    height: 0
    opacity: 0

    Connections {
        target: root.Window.window
        enabled: root.settled && !root.isReady
        function onAfterAnimating() {
            ++root.frames;
        }
    }
}
