// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "search.js" as Search

/// Looks for words in a text area: Enter goes to the next place, Shift+Enter to the one before, Escape ends.
FocusScope {
    id: root

    property Item area
    readonly property var places: visible ? Search.places(area.text, field.text) : []
    readonly property int current: visible ? places.indexOf(area.edit.selectionStart) : -1

    function open() {
        visible = true;
        if (area.edit.selectedText !== "" && area.edit.selectedText.indexOf("\u2029") < 0)
            field.text = area.edit.selectedText;
        field.forceActiveFocus();
        field.selectAll();
    }

    function close() {
        visible = false;
        area.forceActiveFocus();
    }

    function show(place) {
        if (place >= 0)
            area.edit.select(place, place + field.text.length);
    }

    function goOn() {
        show(Search.after(places, area.edit.selectionStart));
    }

    function goBack() {
        show(Search.before(places, area.edit.selectionStart));
    }

    visible: false
    height: 7 * BGUI.Theme.unit
    Keys.onEscapePressed: close()

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.Input {
        id: field
        objectName: "searchText"
        x: BGUI.Theme.unit
        width: Math.min(50 * BGUI.Theme.unit, tools.x - 2 * BGUI.Theme.unit)
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        size: "large"
        faIcon: "fa-search"
        placeholderText: qsTr("Find")
        onTextEdited: root.show(Search.from(root.places, root.area.edit.selectionStart))
        Keys.onReturnPressed: event.modifiers & Qt.ShiftModifier ? root.goBack() : root.goOn()
        Keys.onEnterPressed: root.goOn()
    }

    BGUI.Label {
        objectName: "searchCount"
        anchors.left: field.right
        anchors.leftMargin: 1.5 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: x + implicitWidth < tools.x
        muted: true
        text: field.text === "" ? "" : root.places.length === 0 ? qsTr("Not found")
            : root.current < 0 ? qsTr("%1 found").arg(root.places.length)
            : qsTr("%1 of %2").arg(root.current + 1).arg(root.places.length)
    }

    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-chevron-up"
            toolTip: qsTr("The one before (Shift+Enter)")
            enabled: root.places.length > 0
            onClicked: root.goBack()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-chevron-down"
            toolTip: qsTr("The next (Enter)")
            enabled: root.places.length > 0
            onClicked: root.goOn()
        }

        BGUI.ActionButton {
            size: "large"
            faIcon: "fa-times"
            toolTip: qsTr("End the search (Esc)")
            onClicked: root.close()
        }
    }
}
