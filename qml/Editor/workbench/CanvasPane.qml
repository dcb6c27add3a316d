// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The canvas of an editor: the editing frame with the document on a neutral ground, and what lies over it.
FocusScope {
    id: root

    property var desk
    property bool hand: false
    /// What to do first on an empty page.
    property alias emptyText: empty.text

    /// An item that is no text was double-clicked: what it lists is to be edited.
    signal entriesWanted()
    /// The document cannot be shown, and its text is to be mended.
    signal sourceWanted()

    readonly property alias frameHost: host
    readonly property Item frame: host.item
    readonly property bool isEmpty: desk.live.root !== null && desk.revision >= 0
                                    && !desk.selection.hasNumbered(desk.live.root)

    function takeKeyboard() {
        host.forceActiveFocus(Qt.MouseFocusReason);
    }

    function zoomBy(notches) {
        frame.viewport.zoomBy(notches, width / 2, height / 2);
    }

    function zoomTo(scale) {
        frame.viewport.zoomTo(scale, width / 2, height / 2);
    }

    function fit() {
        frame.viewport.fit();
    }

    // Ends a drag as if it had not been; false when there was none.
    function cancelDrag() {
        const isDragging = frame !== null && frame.tool.running !== null;
        if (isDragging)
            frame.tool.cancel();
        return isDragging;
    }

    clip: true
    Keys.onPressed: {
        const step = event.modifiers & Qt.ShiftModifier ? 10 : 1;
        const ways = {};
        ways[Qt.Key_Left] = [-step, 0];
        ways[Qt.Key_Right] = [step, 0];
        ways[Qt.Key_Up] = [0, -step];
        ways[Qt.Key_Down] = [0, step];
        const way = event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier) ? undefined : ways[event.key];
        if (way)
            desk.changes.nudge(way[0], way[1]);
        else if (event.key === Qt.Key_Space && !event.isAutoRepeat)
            holding.hand = true;
        event.accepted = way !== undefined || event.key === Qt.Key_Space;
    }
    Keys.onReleased: {
        if (event.key === Qt.Key_Space && !event.isAutoRepeat)
            holding.hand = false;
    }
    onActiveFocusChanged: holding.hand = false

    QtObject {
        id: holding
        property bool hand: false
    }

    Rectangle {
        anchors.fill: parent
        color: "#d5dae0"
    }

    Loader {
        id: host
        anchors.fill: parent
        focus: true
    }

    Binding {
        target: root.frame ? root.frame.tool : null
        property: "hand"
        value: root.hand || holding.hand
    }

    Connections {
        target: root.frame

        function onItemToOpen(mouse) {
            const item = root.desk.selection.at(Qt.point(mouse.x, mouse.y));
            const text = mouse.button === Qt.LeftButton ? root.desk.changes.textOf(item) : null;
            if (text !== null)
                root.frame.marks.text.open(item, text);
            else if (mouse.button === Qt.LeftButton)
                root.entriesWanted();
        }

        function onItemsToEdit(mouse) {
            root.takeKeyboard();
            const point = Qt.point(mouse.x, mouse.y);
            if (mouse.button === Qt.RightButton)
                menu.open(root.desk.selection.under(point), point);
            else if (mouse.button === Qt.LeftButton)
                root.desk.selection.click(point, mouse.modifiers & Qt.ShiftModifier);
        }
    }

    CanvasDrop {
        anchors.fill: parent
        desk: root.desk
        frame: root.frame
    }

    CanvasCard {
        id: empty
        objectName: "emptyHint"
        visible: root.isEmpty
        faIcon: "fa-hand-o-left"
        title: qsTr("Nothing on the page yet")
        text: qsTr("Drag a part from the left to where it belongs. A picture or video can be dropped here from "
                   + "the file manager.")
    }

    CanvasCard {
        readonly property var fault: root.desk.fault

        objectName: "faultHint"
        visible: fault !== null
        isError: true
        faIcon: "fa-exclamation-triangle"
        title: qsTr("The document cannot be shown")
        text: !fault ? "" : fault.line > 0 ? qsTr("Line %1: %2").arg(fault.line).arg(fault.message) : fault.message

        BGUI.Button {
            visible: root.desk.forTouch
            size: "large"
            text: qsTr("Open the source")
            onClicked: root.sourceWanted()
        }
    }

    ItemMenu {
        id: menu
        desk: root.desk
        onClosed: root.takeKeyboard()
    }

    SlideBar {
        id: slides
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.desk.slides.show !== null
        desk: root.desk
        size: root.desk.forTouch ? "large" : "base"
    }

    MessageStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: slides.visible ? slides.top : parent.bottom
        anchors.bottomMargin: 2 * BGUI.Theme.unit
        desk: root.desk
    }
}
