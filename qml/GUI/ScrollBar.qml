// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// Attach it to a list or flickable: `T.ScrollBar.vertical: ScrollBar {}`. Gone while everything fits.
T.ScrollBar {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2 * dp
    minimumSize: 0.08
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1

    contentItem: Rectangle {
        implicitWidth: Theme.unit * 0.75
        implicitHeight: Theme.unit * 0.75
        radius: Math.min(width, height) / 2
        color: Theme.mutedInk
        opacity: root.pressed ? 0.9 : (root.hovered ? 0.7 : 0.4)

        Behavior on opacity {
            NumberAnimation { duration: Theme.quick }
        }
    }
}
