// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.desk 1.0
import Nuvex.GUI 1.0 as BGUI

/// Asks whether a document is to be shown that takes long. Escape leaves it.
BGUI.MessageBox {
    id: root

    property EditingDesk desk

    objectName: "largeQuestion"
    title: qsTr("Open this large document?")
    type: "danger"
    acceptText: qsTr("Open it all the same")
    rejectText: qsTr("Back")
    onAccepted: desk.showLarge()

    Connections {
        target: root.desk

        function onLargeFound(why) {
            root.text = why + " " + qsTr("It may take minutes, and all of the memory.");
            Qt.callLater(root.open); // a page that is being made has no window yet
        }
    }
}
