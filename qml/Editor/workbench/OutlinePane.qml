// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI
import "../desk/outline.js" as Outline

/// The objects of the document, one in the other: a click selects, with Shift several; a double click or F2 gives an
/// object another id. Dragged onto another row an object goes there; the marks at the right, or the keys H and L, hide
/// and lock it while it is edited.
FocusScope {
    id: root

    property var desk

    readonly property var rows: desk.revision >= 0 && visible ? Outline.matching(Outline.rows(Ejs.map), search.text)
                                                              : []
    // The number of the object that is dragged, -1 for none, and where it would go; see outline.js.
    property int dragged: -1
    property var target: null
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

    function indent(depth) {
        return BGUI.Theme.unit * (1 + 1.5 * Math.min(depth, 8));
    }

    // Marks where the object would go that is dragged to `y` in the list.
    function dragTo(element, y) {
        const index = list.indexAt(1, Math.max(0, Math.min(list.contentHeight - 1, y)));
        list.positionViewAtIndex(index, ListView.Contain);
        const row = list.itemAtIndex(index);
        dragged = element;
        [mark.y, mark.height] = [row.y, row.height];
        target = row.row.element === element ? null : Outline.dropPlace(Outline.rows(Ejs.map), row.row.element,
                                                                        (y - row.y) / row.height);
    }

    // A selected object takes the other selected ones with it.
    function drop() {
        const wanted = target;
        const elements = selected.indexOf(dragged) < 0 ? [dragged] : selected.slice();
        [dragged, target] = [-1, null];
        if (wanted === null)
            return;
        elements.sort((one, other) => Ejs.map[one].pfirst - Ejs.map[other].pfirst);
        desk.arrangement.nest(elements, wanted.parent, wanted.before);
    }

    function cancelDrag() {
        [dragged, target] = [-1, null];
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
            const acts = {};
            acts[Qt.Key_F2] = () => currentItem.rename();
            acts[Qt.Key_H] = () => root.desk.layers.toggleHidden(root.selected[0]);
            acts[Qt.Key_L] = () => root.desk.layers.toggleLocked(root.selected[0]);
            const act = currentItem && event.modifiers === Qt.NoModifier ? acts[event.key] : undefined;
            if (act)
                act();
            event.accepted = act !== undefined;
        }

        delegate: OutlineRow {
            width: list.width
            row: modelData
            indent: root.indent(modelData.depth)
            isSelected: root.selected.indexOf(modelData.element) >= 0
            isHidden: root.desk.layers.hiddenElements.indexOf(modelData.element) >= 0
            isLocked: root.desk.layers.lockedElements.indexOf(modelData.element) >= 0
            opacity: root.dragged === modelData.element ? 0.5 : 1
            onHiddenToggled: root.desk.layers.toggleHidden(modelData.element)
            onLockedToggled: root.desk.layers.toggleLocked(modelData.element)
            onDragged: root.dragTo(modelData.element, mapToItem(list.contentItem, 0, at).y)
            onDropped: root.drop()
            onDragCanceled: root.cancelDrag()
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

    Item {
        id: mark
        parent: list.contentItem
        width: list.width
        z: 1
        visible: root.target !== null

        Rectangle {
            readonly property bool isEdge: root.target !== null && root.target.edge !== ""

            objectName: "outlineMark"
            x: isEdge ? root.indent(root.target.depth) : 0
            y: !isEdge ? 0 : (root.target.edge === "upper" ? 0 : parent.height) - height / 2
            width: parent.width - x
            height: isEdge ? 2 * dp : parent.height
            color: isEdge ? BGUI.Theme.accent : "transparent"
            border.width: isEdge ? 0 : 2 * dp
            border.color: BGUI.Theme.accent
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
