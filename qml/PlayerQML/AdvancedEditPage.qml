// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// The source files of the project, to be opened as text: the one that is played first.
FormPage {
    id: root

    readonly property string project: CAPI.getSSetting("lastProject")
    property var files: []

    function readFiles() {
        const isFirst = name => name === "main.qml";
        const order = (one, other) => isFirst(other) - isFirst(one) || one.localeCompare(other);
        files = project === "" ? [] : CAPI.getQMLFileList().filter(isSource).sort(order);
    }

    // What the editor writes for itself is none of the project's sources.
    function isSource(name) {
        return name !== CAPI.editorVersion() && name !== "main2.qml";
    }

    function edit(file) {
        shell.push({ item: shell.page("TextEditor"), properties: { path: file }, immediate: true });
    }

    objectName: "AdvancedEditPage"
    title: qsTr("Edit QML Source (%1)").arg(project)
    onActiveChanged: {
        if (active)
            readFiles();
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.files.length === 0
        faIcon: "fa-code"
        title: "No editable files... "
        text: root.project === "" ? qsTr("Open a project first.")
                                  : qsTr("This project holds no QML, script or text file.")
    }

    Sheet {
        visible: root.files.length > 0

        ListView {
            id: list
            objectName: "files"
            width: parent.width
            height: contentHeight
            focus: true
            activeFocusOnTab: true
            interactive: false
            keyNavigationEnabled: true
            model: root.files

            delegate: BGUI.ListRow {
                width: list.width
                size: "large"
                faIcon: /\.txt$/.test(modelData) ? "fa-file-text-o" : "fa-code"
                text: modelData
                detail: modelData === "main.qml" ? qsTr("What is played") : ""
                highlighted: ListView.isCurrentItem && list.activeFocus
                onClicked: {
                    list.currentIndex = index;
                    root.edit(modelData);
                }
            }
        }
    }
}
