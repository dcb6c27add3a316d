// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.desk 1.0
import Nuvex.GUI 1.0 as BGUI

/// Asks which of two documents counts when others have changed its file while it was edited. Escape keeps what is here.
BGUI.MessageBox {
    id: root

    /// The page's, and whether that page is the one that is seen.
    property EditingDesk desk
    property bool isActive: false

    property string other

    objectName: "elsewhereQuestion"
    title: qsTr("Changed elsewhere")
    text: qsTr("The document has been changed outside of this editor, and what is here is not saved. Saving would put"
               + " what is here in its place. When you take the other, Undo brings back what is here.")
    size: desk && desk.forTouch ? "large" : "base"
    type: "danger"
    acceptText: qsTr("Take the other")
    rejectText: qsTr("Keep what is here")
    onAccepted: desk.take(other)
    onRejected: desk.savedSource = other
    onIsActiveChanged: {
        if (isActive)
            desk.takeIn();
    }

    Connections {
        target: root.desk

        function onChangedElsewhere(source) {
            if (!root.isActive)
                return;
            root.other = source;
            root.open();
        }
    }

    Connections {
        target: Qt.application

        function onStateChanged() {
            if (root.isActive && Qt.application.state === Qt.ApplicationActive)
                root.desk.takeIn();
        }
    }
}
