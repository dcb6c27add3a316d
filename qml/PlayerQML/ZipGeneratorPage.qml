// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import "private"

/// Saves a project as a zip archive.
FormPage {
    id: root

    readonly property var projects: CAPI.getProjectList().sort()
    readonly property string project: projects.length > 0 ? projects[list.currentIndex] : ""

    function localPath(url) {
        return decodeURIComponent(url.toString().replace("file://", ""));
    }

    function proposedPath() {
        return localPath(picturesPath) + "/" + project + ".zip";
    }

    // The archive replaces a file of its name only once it is complete.
    function save() {
        const target = path.text;
        const partial = target + ".part";
        CAPI.generateZipFile(partial, project);
        const saved = CAPI.fileExist(partial) && (!CAPI.fileExist(target) || CAPI.removeFile(target))
                      && CAPI.renameFile(partial, target);
        busy.finish(saved ? qsTr("Saved as %1").arg(target) : qsTr("%1 could not be written").arg(target), !saved);
    }

    objectName: "ZipGeneratorPage"
    title: "Export as Zip"
    onProjectChanged: path.text = proposedPath()

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.projects.length === 0
        faIcon: "fa-folder-open-o"
        title: qsTr("There is no project to export")
    }

    Sheet {
        visible: root.projects.length > 0

        BGUI.Label {
            text: qsTr("Which project?")
            size: "large"
            strong: true
        }

        ListView {
            id: list
            width: parent.width
            height: Math.min(contentHeight, 30 * BGUI.Theme.unit)
            clip: true
            focus: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            currentIndex: Math.max(0, root.projects.indexOf(CAPI.getSSetting("lastProject")))
            model: root.projects
            T.ScrollBar.vertical: BGUI.ScrollBar {}

            delegate: BGUI.ListRow {
                width: list.width
                faIcon: "fa-folder"
                text: modelData
                highlighted: ListView.isCurrentItem
                onClicked: list.currentIndex = index
            }
        }

        BGUI.Label {
            text: qsTr("Save as")
            size: "large"
            strong: true
        }

        BGUI.Input {
            id: path
            objectName: "path"
            width: parent.width
            faIcon: "fa-archive"
        }

        BGUI.Button {
            enabled: path.text !== ""
            type: "primary"
            size: "large"
            faIcon: "fa-floppy-o"
            text: qsTr("Export")
            onClicked: {
                root.busy.start("Please wait...");
                later.start();
            }
        }
    }

    // Gives the busy indicator time to be drawn before the packing, which blocks.
    Timer {
        id: later
        interval: 50
        onTriggered: root.save()
    }
}
