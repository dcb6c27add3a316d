// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"

/// Text of many lines, scrolled; it follows the cursor. Tab leaves it.
FocusScope {
    id: root

    property string size: "base"
    property bool hasError: false
    property string fontFamily: Theme.fontFamily
    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias readOnly: input.readOnly
    property alias wrapMode: input.wrapMode
    property alias textFormat: input.textFormat
    property alias cursorPosition: input.cursorPosition
    // What stands left of the text, as line numbers: its width, and the items.
    property real gutterWidth: 0
    default property alias gutter: margin.data
    // A function that sees each key press before the text does, and takes it by accepting the event.
    property var keyFilter: event => { event.accepted = false; }

    // The edit itself, with its selection, clipboard and history.
    readonly property Item edit: input
    readonly property var textDocument: input.textDocument
    readonly property bool hovered: input.hovered
    readonly property real scroll: flick.contentY

    function takeKey(event) {
        keyFilter(event);
        const isTab = event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab;
        if (event.accepted || !isTab)
            return;
        const next = input.nextItemInFocusChain(event.key === Qt.Key_Tab);
        next.forceActiveFocus(event.key === Qt.Key_Tab ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        event.accepted = true;
    }

    implicitWidth: 40 * Theme.unit
    implicitHeight: 16 * Theme.unit
    opacity: enabled ? 1 : 0.6

    FieldFrame {
        anchors.fill: parent
        control: root
        isError: root.hasError
        isReadOnly: root.readOnly
    }

    Item {
        id: margin
        x: flick.x - width
        y: flick.y
        width: root.gutterWidth
        height: flick.height
        clip: true
    }

    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: 2 * dp
        anchors.leftMargin: root.gutterWidth + 2 * dp
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollBar {}
        T.ScrollBar.horizontal: ScrollBar {}

        T.TextArea.flickable: T.TextArea {
            id: input
            focus: true
            padding: Theme.padding("base") - 2 * dp
            hoverEnabled: true
            selectByMouse: true
            persistentSelection: true
            wrapMode: TextEdit.Wrap
            color: bs["input-color"]
            placeholderTextColor: bs["input-color-placeholder"]
            selectionColor: Theme.accent
            selectedTextColor: Theme.surface
            font.family: root.fontFamily
            font.pixelSize: Theme.fontSize(root.size)
            Accessible.name: placeholderText

            Keys.onPressed: root.takeKey(event)

            Placeholder {
                width: input.width - input.leftPadding - input.rightPadding
                control: input
                visible: input.length === 0 && input.preeditText === ""
                wrapMode: Text.Wrap
            }
        }
    }
}
