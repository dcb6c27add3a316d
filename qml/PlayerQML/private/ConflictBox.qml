// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// Asks what to publish where files were changed here and in the cloud. Escape publishes nothing.
BGUI.ModalPopup {
    id: root

    property string project
    property var files: []

    readonly property int filesShown: 6

    // Those of `theirs` stay as they are in the cloud, the others are overwritten.
    signal settled(var theirs)
    signal rejected()

    function ask(conflicts) {
        files = conflicts;
        open();
    }

    function answer(theirs) {
        close();
        if (theirs)
            settled(theirs);
        else
            rejected();
    }

    function listText() {
        const rest = files.length - filesShown;
        const shown = files.slice(0, filesShown).join("\n");
        return rest > 0 ? shown + "\n" + qsTr("and %1 more").arg(rest) : shown;
    }

    width: Math.min(parent ? parent.width - 4 * BGUI.Theme.unit : 0, 64 * BGUI.Theme.unit)
    implicitHeight: contentItem.implicitHeight + 2 * padding
    padding: 3 * BGUI.Theme.unit
    closePolicy: T.Popup.NoAutoClose
    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: FocusScope {
        implicitHeight: column.height
        Keys.onEscapePressed: root.answer(null)
        Keys.onBackPressed: root.answer(null)

        Column {
            id: column
            width: parent.width
            spacing: 1.5 * BGUI.Theme.unit

            BGUI.Label {
                width: parent.width
                size: "h4"
                text: qsTr("%1 was changed in the cloud, too").arg(root.project)
                textFormat: Text.PlainText
            }

            BGUI.Label {
                width: parent.width
                text: qsTr("Somebody else has published these files since. Which are to be kept?")
            }

            BGUI.Label {
                width: parent.width
                muted: true
                text: root.listText()
                textFormat: Text.PlainText
                wrapMode: Text.WrapAnywhere
            }

            Flow {
                width: parent.width
                topPadding: BGUI.Theme.unit
                spacing: BGUI.Theme.unit

                BGUI.Button {
                    id: cancel
                    text: qsTr("Cancel")
                    onClicked: root.answer(null)
                }

                BGUI.Button {
                    text: qsTr("Keep those in the cloud")
                    onClicked: root.answer(root.files)
                }

                BGUI.Button {
                    type: "danger"
                    text: qsTr("Overwrite them with mine")
                    onClicked: root.answer([])
                }
            }
        }
    }
}
