// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI

/// Lists the items under the pointer, each by type and with its preview; choosing one selects it.
Item {
    id: root

    property var desk
    property var items: []

    signal closed()

    // Shows `found`, the one on top last, at a point of this item.
    function open(found, point) {
        items = found.slice().reverse();
        [list.x, list.y] = [Math.min(point.x, width - list.width), Math.min(point.y, height - list.height)];
        visible = items.length > 0;
        if (visible)
            list.forceActiveFocus();
    }

    function close() {
        visible = false;
        items = [];
        closed();
    }

    function choose(item) {
        close();
        desk.selection.set([item]);
    }

    anchors.fill: parent
    visible: false

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: root.close()
        onWheel: wheel.accepted = true
    }

    Rectangle {
        anchors.fill: list
        anchors.margins: -dp
        radius: BGUI.Theme.radius("base")
        color: BGUI.Theme.surface
        border.width: Math.max(1, dp)
        border.color: BGUI.Theme.border
    }

    ListView {
        id: list
        objectName: "itemMenu"
        width: 30 * BGUI.Theme.unit
        height: Math.min(contentHeight, root.height)
        clip: true
        model: root.items
        keyNavigationWraps: true
        currentIndex: 0
        Keys.onEscapePressed: root.close()
        Keys.onReturnPressed: currentItem.clicked()
        Keys.onEnterPressed: currentItem.clicked()

        delegate: BGUI.ListRow {
            id: row
            readonly property Item item: modelData

            width: list.width
            height: 7 * BGUI.Theme.unit
            highlighted: ListView.isCurrentItem
            text: Ejs.map[item.element] ? Ejs.map[item.element].typename : ""
            detail: root.desk.nameOf(item)
            onClicked: root.choose(item)

            Loader {
                width: 8 * BGUI.Theme.unit
                height: 6 * BGUI.Theme.unit
                sourceComponent: row.item && row.item.preview ? row.item.preview : null
            }
        }
    }
}
