// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The panel that an item's component brings with it, else the general one.
Item {
    id: root

    property var desk
    property Item item: null
    /// How many items are selected.
    property int count: 0

    readonly property bool hasPanel: item !== null && item.editor !== undefined && item.editor !== null
                                     && item.editor.status === Component.Ready

    // Opens the table of the item's entries; false when it has none.
    function openEntries() {
        const row = rowOfEntries(own);
        if (row)
            row.openTable();
        return row !== null;
    }

    function rowOfEntries(item) {
        if (item.isPlain === true && item.openTable !== undefined)
            return item;
        return Array.prototype.reduce.call(item.children, (found, child) => found || rowOfEntries(child), null);
    }

    Loader {
        id: own
        anchors.fill: parent
        sourceComponent: root.hasPanel ? root.item.editor : null
        onLoaded: item.radEditor = !root.desk.forTouch
    }

    // A panel stays with its item: another item gets another one.
    Repeater {
        model: root.item !== null && !root.hasPanel ? [root.item] : []

        GeneralPanel {
            anchors.fill: parent
            desk: root.desk
        }
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 4 * BGUI.Theme.unit
        visible: root.count > 1
        faIcon: "fa-list-alt"
        title: qsTr("Several items")
        text: qsTr("Move, align and order them together; for anything else select one.")
    }
}
