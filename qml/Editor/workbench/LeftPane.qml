// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// What there is to add, what there is already, and the project's pictures and videos.
FocusScope {
    id: root

    property var desk
    /// Lies over the whole page: what is dragged moves in it.
    property Item dragArea

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.SwitchTabs {
        id: tabs
        width: parent.width
        model: [qsTr("Parts"), qsTr("Items"), qsTr("Media")]
        currentIndex: 0
    }

    PalettePane {
        anchors.fill: parent
        anchors.topMargin: tabs.height
        visible: tabs.currentIndex === 0
        dragArea: root.dragArea
        onChosen: root.desk.insertion.addChosen(type)
    }

    OutlinePane {
        anchors.fill: parent
        anchors.topMargin: tabs.height
        visible: tabs.currentIndex === 1
        desk: root.desk
    }

    MediaPane {
        anchors.fill: parent
        anchors.topMargin: tabs.height
        visible: tabs.currentIndex === 2
        desk: root.desk
        dragArea: root.dragArea
    }
}
