// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.GUI 1.0 as BGUI
import "../panel/values.js" as Values

/// The panel of an item whose component brings none: what can be set about most items, each as source text; where the
/// source does not say it, the value that it has.
BGUI.ScrollPane {
    id: root

    property var desk

    readonly property Item item: desk.selection.item
    readonly property var record: desk.selection.record
    // Where the page stands and how large it shows is the canvas's matter.
    readonly property var names: ["text", "source", "color"].concat(desk.selection.isRoot ? [] : ["x", "y"], ["width",
        "height", "radius", "spacing", "opacity"], desk.selection.isRoot ? [] : ["rotation", "scale", "visible"])
        .filter(name => item !== null && item[name] !== undefined)

    function textOf(name) {
        const property = record ? record.properties[name] : undefined;
        if (property)
            return property.value.replace(/\s*;$/, "");
        const value = root.item ? root.item[name] : 0;
        return typeof value === "number" ? Values.number(value, 2)
             : typeof value === "boolean" ? String(value) : Values.quoted(value);
    }

    function commit(name, text) {
        const isNew = text.trim() !== "" && text.trim() !== textOf(name);
        return !isNew || desk.changes.property(name, text.trim());
    }

    contentHeight: rows.height + 2 * BGUI.Theme.unit
    clip: true

    Column {
        id: rows
        x: 2 * BGUI.Theme.unit
        y: BGUI.Theme.unit
        width: root.width - 4 * BGUI.Theme.unit
        spacing: BGUI.Theme.unit / 2

        Repeater {
            model: root.names

            PropertyRow {
                width: rows.width
                name: modelData
                value: root.desk.revision >= 0 ? root.textOf(modelData) : ""
                commit: text => root.commit(modelData, text)
            }
        }
    }
}
