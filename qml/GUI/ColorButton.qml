// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// Shows a colour and its name in hexadecimal; pressed, it drops down a ColorPicker.
T.Button {
    id: root

    property string size: "base"
    property color color: Theme.accent
    /// Colours that are in use; the picker offers them.
    property var used: []

    readonly property T.Popup popup: dropDown

    // The user chose a colour; told for each step while the mouse drags.
    signal picked(color color)

    function toggle() {
        if (popup.opened)
            popup.close();
        else
            popup.open();
    }

    implicitWidth: 16 * Theme.unit
    implicitHeight: Theme.controlHeight(size)
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    text: String(color).toUpperCase()
    onClicked: toggle()
    Accessible.name: text

    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    contentItem: Item {
        Swatch {
            id: swatch
            anchors.verticalCenter: parent.verticalCenter
            x: 4 * dp
            width: height * 1.5
            height: parent.height - 2 * x
            sample: root.color
        }

        Label {
            anchors.left: swatch.right
            anchors.right: parent.right
            anchors.margins: Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: root.size
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
        }
    }

    background: FieldFrame {
        control: root
        isFocused: root.visualFocus || popup.visible
    }

    TouchReach {
        control: root
    }

    T.Popup {
        id: dropDown
        y: root.height + Theme.unit / 2
        width: implicitContentWidth + 2 * padding
        height: implicitContentHeight + 2 * padding
        margins: Theme.unit
        padding: 1.5 * Theme.unit
        focus: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        onOpened: picker.forceActiveFocus(Qt.TabFocusReason)
        onClosed: root.forceActiveFocus(Qt.TabFocusReason)

        contentItem: ColorPicker {
            id: picker
            size: root.size
            color: root.color
            used: root.used
            onPicked: {
                root.color = color;
                root.picked(color);
            }
        }

        background: Rectangle {
            radius: Theme.radius("large")
            color: bs["dropdown-bg"]
            border.width: Math.max(1, dp)
            border.color: bs["dropdown-border"]

            Shadow {}
        }
    }
}
