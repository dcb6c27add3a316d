// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.Editor.panel 1.0
import Nuvex.GUI 1.0 as BGUI

/// The project's pictures and videos: dragged onto the canvas they become items, onto an item what it shows; a double
/// click or Enter puts one into the selected item. Files from elsewhere are copied into the project.
FocusScope {
    id: root

    property var desk
    property Item dragArea: null
    // Paths in the project.
    property var files: []

    // Only another list makes the tiles anew.
    function look() {
        const found = desk.fileDrop.files();
        if (found.join("\n") !== files.join("\n"))
            files = found;
    }

    function bringIn(file) {
        if (Files.bringIn(file) === "")
            desk.say(qsTr("The file could not be copied into the project."));
        look();
    }

    function pick() {
        picker.active = true;
        picker.item.open();
    }

    onVisibleChanged: {
        if (visible)
            look();
    }

    Connections {
        target: root.desk
        enabled: root.visible

        function onRevisionChanged() {
            root.look();
        }
    }

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.surface
    }

    BGUI.Button {
        id: add
        objectName: "addFile"
        x: BGUI.Theme.unit
        y: BGUI.Theme.unit
        width: parent.width - 2 * BGUI.Theme.unit
        faIcon: "fa-plus"
        text: qsTr("Add a picture or video")
        onClicked: root.pick()
    }

    GridView {
        id: grid
        anchors.fill: parent
        anchors.margins: BGUI.Theme.unit
        anchors.topMargin: add.height + 2 * BGUI.Theme.unit
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        cellWidth: Math.floor(width / 2)
        cellHeight: 10.5 * BGUI.Theme.unit
        cacheBuffer: 0
        keyNavigationEnabled: false
        model: root.files
        T.ScrollBar.vertical: BGUI.ScrollBar {}

        delegate: MediaTile {
            width: grid.cellWidth
            height: grid.cellHeight
            pictureWidth: width - 2 * BGUI.Theme.unit
            pictureHeight: 7.5 * BGUI.Theme.unit
            path: modelData
            kind: root.desk.fileDrop.kindOf(modelData)
            dragArea: root.dragArea
            onChosen: root.desk.fileDrop.showChosen(path)
        }
    }

    BGUI.EmptyState {
        anchors.centerIn: grid
        width: grid.width
        visible: root.files.length === 0
        faIcon: "fa-picture-o"
        title: qsTr("No pictures or videos yet")
        text: qsTr("Add some, or drop them here from the file manager.")
    }

    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: {
            root.desk.fileDrop.bringAll(drop.urls);
            root.look();
            drop.accept(Qt.CopyAction);
        }
    }

    Loader {
        id: picker
        active: false
        sourceComponent: FilePicker {
            nameFilters: Files.filters.picture.concat(Files.filters.video)
            onPicked: root.bringIn(file)
        }
    }

    Rectangle {
        anchors.right: parent.right
        width: Math.max(1, dp)
        height: parent.height
        color: BGUI.Theme.line
    }
}
