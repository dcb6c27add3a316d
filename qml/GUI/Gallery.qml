// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15
import "."

// Sheets that show every widget in every state, and what else its host adds, in chapters of which one is open. The
// keyboard reaches all of it: what has the focus scrolls into view, and the keys for pages scroll.
FocusScope {
    id: gallery

    // Chapters as maps with "text" and "faIcon" for their tabs and "source", a document with the sheets.
    property var chapters: [{ "text": qsTr("Widgets"), "faIcon": "fa-check-square-o", "source": "gallery/GalleryWidgets.qml" }]
    property alias currentIndex: tabs.currentIndex
    // What the open chapter shows; null while it loads.
    readonly property alias chapter: loader.item

    readonly property int columns: chapter ? chapter.columns : 1
    readonly property real gap: 2 * Theme.unit
    readonly property Item focusedItem: Window.activeFocusItem

    function isInside(item) {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === flick.contentItem)
                return true;
        }
        return false;
    }

    function scrollTo(y) {
        flick.contentY = Math.max(0, Math.min(y, flick.contentHeight - flick.height));
    }

    function reveal(item) {
        const y = item.mapToItem(flick.contentItem, 0, 0).y;
        const below = y + Math.min(item.height, flick.height - 2 * gap) + gap - flick.height;
        scrollTo(Math.max(below, Math.min(flick.contentY, y - gap)));
    }

    function scrollByKey(key) {
        const steps = {};
        steps[Qt.Key_Up] = -8 * Theme.unit;
        steps[Qt.Key_Down] = 8 * Theme.unit;
        steps[Qt.Key_PageUp] = -0.9 * flick.height;
        steps[Qt.Key_PageDown] = 0.9 * flick.height;
        steps[Qt.Key_Home] = -flick.contentHeight;
        steps[Qt.Key_End] = flick.contentHeight;
        if (steps[key] !== undefined)
            scrollTo(flick.contentY + steps[key]);
        return steps[key] !== undefined;
    }

    onFocusedItemChanged: {
        if (focusedItem && isInside(focusedItem))
            reveal(focusedItem);
    }

    Keys.onPressed: event.accepted = scrollByKey(event.key)

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Rectangle {
        id: bar
        width: parent.width
        height: visible ? tabs.height : 0
        visible: gallery.chapters.length > 1
        color: Theme.surface

        SwitchTabs {
            id: tabs
            width: parent.width
            leftMargin: gallery.gap / 2
            rightMargin: gallery.gap / 2
            focus: bar.visible
            currentIndex: 0
            model: gallery.chapters
            onCurrentIndexChanged: flick.contentY = 0
        }
    }

    Flickable {
        id: flick
        anchors.fill: parent
        anchors.topMargin: bar.height
        contentHeight: loader.height + 2 * gallery.gap
        boundsBehavior: Flickable.StopAtBounds
        clip: bar.visible

        T.ScrollBar.vertical: ScrollBar {}

        Loader {
            id: loader
            x: gallery.gap
            y: gallery.gap
            width: flick.width - 2 * gallery.gap
            source: gallery.chapters[tabs.currentIndex].source
        }
    }
}
