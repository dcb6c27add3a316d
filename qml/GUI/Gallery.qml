// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15
import "."

// Every widget in every state, on sheets in as many columns as fit. The keyboard reaches all of them; the sheet with
// the focus scrolls into view.
FocusScope {
    id: gallery

    // The sheets, in order, as documents relative to this one.
    property var sheets: ["Buttons", "Choices", "Fields", "Messages", "Source", "Lists", "Pictures", "Colors", "Scale",
                          "Files", "Icons"].map(name => "gallery/Gallery" + name + ".qml")

    readonly property int columns: Math.max(1, Math.min(3, Math.floor(width / (62 * Theme.unit))))
    readonly property real gap: 2 * Theme.unit
    readonly property Item focusedItem: Window.activeFocusItem

    function isInside(item) {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === flick.contentItem)
                return true;
        }
        return false;
    }

    function reveal(item) {
        const y = item.mapToItem(flick.contentItem, 0, 0).y;
        const below = y + Math.min(item.height, flick.height - 2 * gap) + gap - flick.height;
        flick.contentY = Math.max(0, Math.max(below, Math.min(flick.contentY, y - gap)));
    }

    onFocusedItemChanged: {
        if (focusedItem && isInside(focusedItem))
            reveal(focusedItem);
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentHeight: row.height + 2 * gallery.gap
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollBar {}

        Row {
            id: row
            x: gallery.gap
            y: gallery.gap
            spacing: gallery.gap

            Repeater {
                model: gallery.columns

                Column {
                    id: column

                    readonly property int number: index

                    width: (flick.width - (gallery.columns + 1) * gallery.gap) / gallery.columns
                    spacing: gallery.gap

                    Repeater {
                        model: gallery.sheets.filter((sheet, i) => i % gallery.columns === column.number)

                        Loader {
                            width: column.width
                            source: modelData
                        }
                    }
                }
            }
        }
    }
}
