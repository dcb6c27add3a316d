// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"

/// One line of text. Enter accepts. With an `error` the field turns red and the message stands below it.
T.TextField {
    id: root

    property string size: "base"
    property string faIcon
    property string error
    // Offers a cross that empties the field.
    property bool clearable: false

    readonly property real fieldHeight: Math.max(Theme.controlHeight(size), Math.ceil(contentHeight))
    readonly property bool showsClear: clearable && text !== "" && enabled && !readOnly

    // A text longer than its field shows its start while nobody writes in it.
    function rest() {
        if (!activeFocus)
            cursorPosition = 0;
    }

    onTextChanged: rest()
    onActiveFocusChanged: {
        rest();
        if (activeFocus && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason))
            selectAll(); // what is typed then replaces it, as in any form
        else if (activeFocus && focusReason !== Qt.MouseFocusReason)
            cursorPosition = length;
    }

    implicitWidth: 28 * Theme.unit
    implicitHeight: fieldHeight + bottomInset
    bottomInset: error === "" ? 0 : message.implicitHeight + Theme.unit / 2
    bottomPadding: bottomInset
    leftPadding: Theme.padding(size) * (faIcon === "" ? 1 : 0.75) + (faIcon === "" ? 0 : 1.6 * font.pixelSize)
    rightPadding: Theme.padding(size) + (showsClear ? clear.width : 0)
    opacity: enabled ? 1 : 0.6
    hoverEnabled: true
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    color: bs["input-color"]
    placeholderTextColor: bs["input-color-placeholder"]
    selectionColor: Theme.accent
    selectedTextColor: Theme.surface
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(size)
    Accessible.name: placeholderText

    background: FieldFrame {
        implicitHeight: root.fieldHeight
        control: root
        isError: root.error !== ""
        isReadOnly: root.readOnly

        FontAwesomeIcon {
            x: Theme.padding(root.size) * 0.75
            anchors.verticalCenter: parent.verticalCenter
            faIcon: root.faIcon
            size: root.size
            color: Theme.mutedInk
        }

        Placeholder {
            control: root
            width: parent.width - root.leftPadding - root.rightPadding
            visible: root.length === 0 && root.preeditText === ""
        }
    }

    Label {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.error !== ""
        size: "small"
        text: root.error
        textFormat: Text.PlainText
        color: Theme.danger
    }

    ActionButton {
        id: clear
        anchors.right: parent.right
        y: (root.fieldHeight - height) / 2
        visible: root.showsClear
        focusPolicy: Qt.NoFocus
        size: root.size
        faIcon: "fa-times-circle"
        toolTip: qsTr("Clear")
        color: Theme.mutedInk
        onClicked: root.clear()
    }
}
