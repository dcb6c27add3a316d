// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The edit tools of a text area: history, clipboard and search; for a QMLTextArea the line tools too. Items declared
/// inside stand at the end. Ctrl+F opens the search while the text or the bar has the keyboard.
Flow {
    id: root

    property Item target
    property string size: "base"

    readonly property Item edit: target ? target.edit : null
    readonly property bool isSource: target !== null && target.toggleComment !== undefined
    readonly property bool canEdit: edit !== null && edit.enabled && !edit.readOnly
    readonly property bool hasSelection: edit !== null && edit.selectionStart !== edit.selectionEnd

    // Which tools can be used now.
    readonly property var can: ({
        "undo": canEdit && edit.canUndo,
        "redo": canEdit && edit.canRedo,
        "cut": canEdit && hasSelection,
        "copy": hasSelection,
        "paste": canEdit && edit.canPaste,
        "indent": canEdit && isSource,
        "outdent": canEdit && isSource,
        "comment": canEdit && isSource,
        "find": edit !== null
    })

    function run(tool) {
        const own = { "find": search.open, "indent": () => target.indent(1), "outdent": () => target.indent(-1),
                      "comment": () => target.toggleComment() };
        if (own[tool])
            own[tool]();
        else
            edit[tool]();
    }

    spacing: Theme.unit / 2
    Accessible.role: Accessible.ToolBar

    Repeater {
        model: [
            { "tool": "undo", "icon": "fa-undo", "tip": qsTr("Undo (Ctrl+Z)") },
            { "tool": "redo", "icon": "fa-repeat", "tip": qsTr("Redo (Ctrl+Shift+Z)") },
            { "tool": "cut", "icon": "fa-scissors", "tip": qsTr("Cut (Ctrl+X)") },
            { "tool": "copy", "icon": "fa-files-o", "tip": qsTr("Copy (Ctrl+C)") },
            { "tool": "paste", "icon": "fa-clipboard", "tip": qsTr("Paste (Ctrl+V)") },
            { "tool": "indent", "icon": "fa-indent", "tip": qsTr("Indent (Tab)"), "forSource": true },
            { "tool": "outdent", "icon": "fa-outdent", "tip": qsTr("Indent less (Shift+Tab)"), "forSource": true },
            { "tool": "comment", "icon": "fa-code", "tip": qsTr("Comment (Ctrl+/)"), "forSource": true },
            { "tool": "find", "icon": "fa-search", "tip": qsTr("Find (Ctrl+F)") }
        ]

        ActionButton {
            objectName: modelData.tool
            visible: root.isSource || !modelData.forSource
            enabled: root.can[modelData.tool]
            focusPolicy: Qt.TabFocus
            size: root.size
            faIcon: modelData.icon
            toolTip: modelData.tip
            onClicked: root.run(modelData.tool)
        }
    }

    TextSearch {
        id: search
        edit: root.edit
        size: root.size
    }
}
