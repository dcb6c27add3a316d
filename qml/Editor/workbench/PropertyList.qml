// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI

/// The properties that the selected item's source sets, by name and value; a line for a new one stands at the end.
FocusScope {
    id: root

    property var desk

    readonly property var record: desk.selection.record
    readonly property var properties: record && desk.revision >= 0 ? record.properties : ({})
    // Changes only with the names, so that a field keeps the keyboard while values change.
    property var names: []

    function commit(name, value) {
        const text = value.trim();
        return text !== "" && text !== sourceOf(name) ? desk.changes.property(name, text) : true;
    }

    function sourceOf(name) {
        const property = root.properties[name];
        return property ? property.value.replace(/\s*;$/, "") : "";
    }

    onPropertiesChanged: {
        const found = Object.keys(properties).sort((a, b) => properties[a].pfirst - properties[b].pfirst);
        if (found.join() !== names.join())
            names = found;
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.margins: BGUI.Theme.unit
        clip: true
        model: root.names
        spacing: BGUI.Theme.unit / 2
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: BGUI.ScrollBar {}

        delegate: PropertyRow {
            width: list.width
            name: modelData
            value: root.desk.revision >= 0 ? root.sourceOf(name) : ""
            readOnly: name === "id"
            commit: text => root.commit(name, text)
        }

        footer: Row {
            width: list.width
            topPadding: BGUI.Theme.unit
            spacing: BGUI.Theme.unit / 2

            BGUI.Input {
                id: newName
                objectName: "newProperty"
                width: 0.4 * parent.width
                placeholderText: qsTr("Property")
            }

            BGUI.Input {
                objectName: "newValue"
                width: parent.width - newName.width - parent.spacing
                placeholderText: qsTr("Value, then Enter")
                onAccepted: {
                    if (/^[A-Za-z_][\w.]*$/.test(newName.text) && newName.text !== "id"
                            && root.commit(newName.text, text)) {
                        newName.clear();
                        clear();
                    }
                }
            }
        }
    }
}
