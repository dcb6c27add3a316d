// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Sheets that show every widget in every state and every component, in chapters of which one is open. The keyboard
/// reaches all of it: what has the focus scrolls into view, and the keys for pages scroll.
FocusScope {
    id: root

    /// Chapters as maps with "text" and "faIcon" for their tabs and "source", a document with the sheets.
    property var chapters: [
        { "text": qsTr("Widgets"), "faIcon": "fa-check-square-o", "source": "GalleryWidgets.qml" },
        { "text": qsTr("Pictures"), "faIcon": "fa-picture-o", "source": "PictureSheets.qml" },
        { "text": qsTr("Texts"), "faIcon": "fa-font", "source": "TextSheets.qml" },
        { "text": qsTr("Time and news"), "faIcon": "fa-clock-o", "source": "TimeSheets.qml" },
        { "text": qsTr("Menus"), "faIcon": "fa-cutlery", "source": "MenuSheets.qml" },
        { "text": qsTr("Shows"), "faIcon": "fa-film", "source": "ShowSheets.qml" },
        { "text": qsTr("Layouts"), "faIcon": "fa-th-large", "source": "LayoutSheets.qml" },
        { "text": qsTr("Effects"), "faIcon": "fa-magic", "source": "EffectSheets.qml" }
    ]
    property alias currentIndex: tabs.currentIndex
    /// What the open chapter shows; null while it loads.
    readonly property alias chapter: loader.item

    readonly property int columns: chapter ? chapter.columns : 1
    readonly property real gap: 2 * Theme.unit

    Keys.onPressed: event.accepted = pane.scrollByKey(event.key)

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Rectangle {
        id: bar
        width: parent.width
        height: visible ? tabs.height : 0
        visible: root.chapters.length > 1
        color: Theme.surface

        SwitchTabs {
            id: tabs
            width: parent.width
            leftMargin: root.gap / 2
            rightMargin: root.gap / 2
            focus: bar.visible
            currentIndex: 0
            model: root.chapters
            onCurrentIndexChanged: pane.contentY = 0
        }
    }

    ScrollPane {
        id: pane
        anchors.fill: parent
        anchors.topMargin: bar.height
        contentHeight: loader.height + 2 * root.gap
        gap: root.gap
        clip: bar.visible

        Loader {
            id: loader
            x: root.gap
            y: root.gap
            width: pane.width - 2 * root.gap
            source: root.chapters[tabs.currentIndex].source
            onLoaded: item.pane = pane
        }
    }
}
