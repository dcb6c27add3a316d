// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "values.js" as Values

/// Text of several lines. The item follows while it is typed; leaving the field finishes.
PanelRow {
    id: root

    readonly property alias area: area

    function show() {
        if (root.pending === "" && area.text !== String(root.value))
            area.text = root.value === undefined ? "" : String(root.value);
    }

    labelWidth: width
    onValueChanged: show()

    BGUI.TextArea {
        id: area
        width: parent.width
        height: 12 * BGUI.Theme.unit
        size: root.size
        textFormat: TextEdit.PlainText
        Accessible.name: root.label
        onTextChanged: {
            if (activeFocus && text !== String(root.value))
                root.change(Values.quoted(text));
        }
        onActiveFocusChanged: {
            if (!activeFocus)
                root.finish();
        }
    }
}
