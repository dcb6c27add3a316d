// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15

/// Stands in the middle of the window, over everything. The keyboard is in it while it is open, and goes back to where
/// it was.
T.Popup {
    id: root

    property Item opener: null
    property int openersReason: Qt.OtherFocusReason

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    onAboutToShow: {
        opener = parent.Window.activeFocusItem;
        openersReason = opener && opener.focusReason !== undefined ? opener.focusReason : Qt.OtherFocusReason;
    }
    onClosed: {
        if (opener)
            opener.forceActiveFocus(openersReason);
    }

    T.Overlay.modal: Rectangle {
        color: Qt.rgba(Theme.strongInk.r, Theme.strongInk.g, Theme.strongInk.b, 0.45)
    }
}
