// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Offers what was not saved when the program ended the last time.
BGUI.MessageBox {
    id: root

    property var desk
    property string project

    // The source that was kept, and when.
    property string kept
    property date time

    objectName: "recoveryQuestion"
    size: desk.forTouch ? "large" : "base"
    title: qsTr("Take up what was not saved?")
    text: qsTr("%1 has changes that were not saved when the program ended.").arg(project)
          + (isNaN(time.getTime()) ? ""
             : " " + qsTr("They were kept last on %1.").arg(Qt.formatDateTime(time, Qt.DefaultLocaleShortDate)))
          + " " + qsTr("Undo takes them back.")
    acceptText: qsTr("Take them up")
    rejectText: qsTr("Not now")
    onAccepted: desk.adopt(kept)

    Connections {
        target: root.desk.recovery

        function onFound(source, when) {
            root.kept = source;
            root.time = new Date(when);
            root.open();
        }
    }
}
