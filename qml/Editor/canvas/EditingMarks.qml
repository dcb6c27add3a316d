// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "geometry.js" as Geometry

/// What a desk lets one do with the selected items on the canvas: the handles of a single one, guides while it is
/// dragged, and a label that says its numbers, or why it stands where it stands.
Item {
    id: root

    property Item frame

    readonly property alias guides: guideLines
    readonly property alias text: textEdit
    /// The item into which what is dragged over the canvas will go.
    property Item dropTarget: null
    readonly property Item single: frame.selection.length === 1 && frame.selection[0] !== frame.myfill
                                   ? frame.selection[0] : null
    readonly property var placing: single && frame.desk.revision >= 0 ? frame.desk.placingOf(single) : ({})

    // What is a shader's source can be kept from being drawn without a change of its own properties.
    Repeater {
        model: root.frame.desk.layers.hidden

        ShaderEffectSource {
            visible: false
            live: false
            hideSource: true
            sourceItem: modelData
        }
    }

    Guides {
        id: guideLines
        canvas: root.frame
    }

    ItemSpace {
        id: dropMark
        canvas: root.frame
        target: root.dropTarget

        Rectangle {
            anchors.fill: parent
            color: "#1a2a6496"
            border.width: 2 / dropMark.unit
            border.color: "#2a6496"
        }
    }

    Handles {
        id: handles
        frame: root.frame
        canvas: root.frame
        target: textEdit.isOpen ? null : root.single
        placing: root.placing
    }

    TextInPlace {
        id: textEdit
        canvas: root.frame
        desk: root.frame.desk
    }

    CanvasLabel {
        id: label

        readonly property rect place: Geometry.bounds(handles.axes, handles.width, handles.height)

        objectName: "canvasLabel"
        x: Math.round(Math.max(0, Math.min(root.width - width, place.x + (place.width - width) / 2)))
        y: Math.round(Math.max(0, Math.min(root.height - height, place.y + place.height + 1.5 * BGUI.Theme.unit)))
        visible: text !== "" && handles.target !== null
        text: root.frame.label || root.placing.words || ""
    }
}
