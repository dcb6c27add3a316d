// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The panel that an item's component brings with it.
Item {
    id: root

    property Item item: null
    /// How many items are selected.
    property int count: 0

    readonly property bool hasPanel: item !== null && item.editor !== undefined && item.editor !== null
                                     && item.editor.status === Component.Ready

    Loader {
        anchors.fill: parent
        sourceComponent: root.hasPanel ? root.item.editor : null
        onLoaded: item.radEditor = true
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 4 * BGUI.Theme.unit
        visible: !root.hasPanel
        faIcon: "fa-list-alt"
        title: root.count > 1 ? qsTr("Several items") : qsTr("No panel for this item")
        text: root.count > 1 ? qsTr("Move, align and order them together; for anything else select one.")
                             : qsTr("Its properties can be set in the list beside.")
    }
}
