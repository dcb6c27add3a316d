// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// A question or message over the whole window. Enter or Space presses the focused button, at first the one that does
/// no harm: the accepting one, or the rejecting one when `type` is "danger". Escape rejects.
ModalPopup {
    id: root

    property string title
    property string text
    property string size: "base"
    // Look of the accepting button, as Button's.
    property string type: "primary"
    property string acceptText: qsTr("OK")
    // Empty: nothing to reject.
    property string rejectText

    signal accepted()
    signal rejected()

    function answer(isAccepted) {
        close();
        if (isAccepted)
            accepted();
        else
            rejected();
    }

    width: Math.min(parent ? parent.width - 4 * Theme.unit : 0, 52 * Theme.unit)
    height: contentItem.implicitHeight + 2 * padding
    padding: 3 * Theme.unit
    closePolicy: T.Popup.NoAutoClose
    onOpened: {
        const safe = type === "danger" && rejectText !== "" ? reject : accept;
        safe.forceActiveFocus(Qt.TabFocusReason);
    }

    background: Rectangle {
        radius: Theme.radius("xlarge")
        color: Theme.surface
    }

    contentItem: FocusScope {
        implicitHeight: column.height
        Keys.onEscapePressed: root.answer(false)
        Keys.onBackPressed: root.answer(false)

        Column {
            id: column
            width: parent.width
            spacing: 1.5 * Theme.unit

            Label {
                width: parent.width
                visible: text !== ""
                text: root.title
                textFormat: Text.PlainText
                size: "h4"
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: root.text
                textFormat: Text.PlainText
                size: root.size
            }

            Row {
                anchors.right: parent.right
                topPadding: Theme.unit
                spacing: Theme.unit

                Button {
                    id: reject
                    visible: text !== ""
                    size: root.size
                    text: root.rejectText
                    onClicked: root.answer(false)
                }

                Button {
                    id: accept
                    size: root.size
                    type: root.type
                    text: root.acceptText
                    onClicked: root.answer(true)
                }
            }
        }
    }
}
