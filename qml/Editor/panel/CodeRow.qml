// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Code that runs when something happens. It is not run here; leaving the field writes it, if it can be read at all.
PanelRow {
    id: root

    readonly property string code: form.revision > 0 ? form.source(name) : ""

    readonly property alias area: area

    // Several statements stand in braces.
    function asSource(text) {
        const code = text.trim();
        return code === "" || code.startsWith("{") || !/[;\n]/.test(code.replace(/;$/, "")) ? code.replace(/;$/, "")
                                                                                         : "{\n" + code + "\n}";
    }

    function put(text) {
        const code = asSource(text) || "{}";
        if (code === root.code || (root.code === "" && code === "{}"))
            return;
        area.hasError = !form.commitAll([{ name: root.name, text: code, isHandler: true }]);
    }

    minds: false
    labelWidth: width
    onCodeChanged: area.text = code

    BGUI.TextArea {
        id: area
        width: parent.width
        height: 10 * BGUI.Theme.unit
        size: root.size
        textFormat: TextEdit.PlainText
        fontFamily: BGUI.Theme.codeFamily
        Accessible.name: root.label
        onActiveFocusChanged: {
            if (!activeFocus)
                root.put(text);
        }
        Component.onDestruction: root.put(text)
    }
}
