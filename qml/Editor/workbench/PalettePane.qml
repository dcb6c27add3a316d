// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "palette.js" as Palette

/// The components that can be added: dragged onto the canvas, or by a double click or Enter into what is selected;
/// where nothing can be dragged, by a tap.
FocusScope {
    id: root

    /// Lies over the whole page: what is dragged moves in it; null where nothing is dragged.
    property Item dragArea: null

    /// The user wants a component of that type in what is selected.
    signal chosen(string type)

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.Input {
        id: search
        x: BGUI.Theme.unit
        y: BGUI.Theme.unit
        width: parent.width - 2 * BGUI.Theme.unit
        faIcon: "fa-search"
        placeholderText: qsTr("Find a part")
        clearable: true
    }

    BGUI.ScrollPane {
        anchors.fill: parent
        anchors.topMargin: search.height + 2 * BGUI.Theme.unit
        contentHeight: groups.height + BGUI.Theme.unit
        clip: true

        Column {
            id: groups
            x: BGUI.Theme.unit
            width: root.width - 2 * BGUI.Theme.unit
            spacing: BGUI.Theme.unit

            Repeater {
                model: Palette.matching(search.text)

                Column {
                    width: groups.width

                    BGUI.Label {
                        width: parent.width
                        bottomPadding: BGUI.Theme.unit / 2
                        size: "small"
                        strong: true
                        muted: true
                        text: modelData.title
                    }

                    Flow {
                        width: parent.width

                        Repeater {
                            model: modelData.parts

                            PaletteTile {
                                width: Math.floor(groups.width / 3)
                                type: modelData.type
                                label: modelData.label
                                dragArea: root.dragArea
                                onChosen: root.chosen(type)
                            }
                        }
                    }
                }
            }

            BGUI.Label {
                width: parent.width
                visible: search.text !== "" && Palette.matching(search.text).length === 0
                muted: true
                text: qsTr("No part is called that.")
            }
        }
    }

    Rectangle {
        anchors.right: parent.right
        width: Math.max(1, dp)
        height: parent.height
        color: BGUI.Theme.line
    }
}
