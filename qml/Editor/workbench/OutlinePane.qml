// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI
import "../desk/outline.js" as Outline

/// The objects of the document, one in the other: a click selects, with Shift several; a double click or F2 gives an
/// object another id.
FocusScope {
    id: root

    property var desk

    readonly property var rows: desk.revision >= 0 && visible ? Outline.matching(Outline.rows(Ejs.map), search.text)
                                                              : []
    readonly property var selected: desk.selection.items.map(item => item.element)

    // Selects the object's item; one that is no item, like a timer, cannot be selected.
    function choose(element, isAdding) {
        const item = Ejs.childrenByElement(desk.live.root, element);
        if (!item)
            return;
        if (isAdding)
            desk.selection.toggle(item);
        else
            desk.selection.set([item]);
    }

    function showSelected() {
        const index = rows.findIndex(row => row.element === selected[0]);
        if (index >= 0)
            list.positionViewAtIndex(index, ListView.Contain);
        list.currentIndex = index;
    }

    onSelectedChanged: Qt.callLater(showSelected)
    onRowsChanged: {
        // Only a change of what is shown makes the rows anew.
        if (JSON.stringify(rows) !== JSON.stringify(list.model))
            list.model = rows;
        Qt.callLater(showSelected);
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.Input {
        id: search
        objectName: "findItem"
        x: BGUI.Theme.unit
        y: BGUI.Theme.unit
        width: parent.width - 2 * BGUI.Theme.unit
        faIcon: "fa-search"
        placeholderText: qsTr("Find an item")
        clearable: true
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.topMargin: search.height + 2 * BGUI.Theme.unit
        clip: true
        focus: true
        activeFocusOnTab: true
        model: []
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        T.ScrollBar.vertical: BGUI.ScrollBar {}
        Keys.onUpPressed: root.step(-1)
        Keys.onDownPressed: root.step(1)
        Keys.onPressed: {
            if (event.key === Qt.Key_F2 && currentItem)
                currentItem.rename();
            event.accepted = event.key === Qt.Key_F2;
        }

        delegate: OutlineRow {
            width: list.width
            row: modelData
            isSelected: root.selected.indexOf(modelData.element) >= 0
            onChosen: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                root.choose(modelData.element, isAdding);
            }
            onRenamed: {
                root.choose(modelData.element, false);
                root.desk.changes.rename(id);
            }
        }
    }

    // Goes to the next object that can be selected, up or down the list.
    function step(by) {
        let index = list.currentIndex + by;
        while (rows[index] && !Ejs.childrenByElement(desk.live.root, rows[index].element))
            index += by;
        if (rows[index])
            choose(rows[index].element, false);
    }

    BGUI.Label {
        anchors.top: search.bottom
        anchors.margins: BGUI.Theme.unit
        x: BGUI.Theme.unit
        width: parent.width - 2 * BGUI.Theme.unit
        visible: root.rows.length === 0
        muted: true
        text: search.text === "" ? qsTr("The document has no items.") : qsTr("No item is called that.")
    }

    Rectangle {
        anchors.right: parent.right
        width: Math.max(1, dp)
        height: parent.height
        color: BGUI.Theme.line
    }
}
