// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.canvas 1.0

/// The editing frame around a live document: shows it, pans and zooms, marks what is selected, and lets a desk edit it
/// by mouse. It is copied into a project and loaded from there; what it needs lies in the module.
Item {
    id: root

    // Root of the live document.
    property Item myfill: null
    // The selected items of it.
    property var selection: []
    // Carries out what is done on the canvas; without one the frame only shows and pans.
    property var desk: null
    // What is said at the selection while it is dragged.
    property string label: ""

    readonly property alias viewport: view
    readonly property var marks: editing.item
    readonly property var guides: marks ? marks.guides : null
    readonly property alias tool: pointer

    // The user clicked on the document, or double-clicked it: `mouse` says where and with which button.
    signal itemsToEdit(var mouse)
    signal itemToOpen(var mouse)
    // An item was selected, or none (null).
    signal itemSelected(var item)

    onItemSelected: selection = item ? [item] : []

    Viewport {
        id: view
        anchors.fill: parent
        document: root.myfill
    }

    Pinch {
        id: pinch
        anchors.fill: parent
        enabled: root.myfill !== null
        viewport: view

        PointerTool {
            id: pointer
            anchors.fill: parent
            frame: root
            viewport: view
        }
    }

    Marks {
        anchors.fill: parent
        frame: root
    }

    Loader {
        id: editing
        anchors.fill: parent
        active: root.desk !== null
        sourceComponent: EditingMarks {
            frame: root
        }
    }
}
