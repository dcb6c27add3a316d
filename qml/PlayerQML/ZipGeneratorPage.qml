// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
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

    function save() {
        notice.text = "";
        exports.target = path.text;
        exports.start(path.text, project);
        stopper.forceActiveFocus(Qt.TabFocusReason);
    }

    function showOutcome(error, cancelled) {
        saver.forceActiveFocus(Qt.TabFocusReason);
        if (cancelled)
            return;
        notice.type = error === "" ? "success" : "danger";
        notice.text = error === "" ? qsTr("Saved as %1").arg(exports.target)
                                   : qsTr("%1 could not be written: %2.").arg(exports.target).arg(error);
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
            enabled: !exports.running
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
            enabled: !exports.running
            faIcon: "fa-archive"
        }

        BGUI.Notice {
            id: notice
        }

        BGUI.Button {
            id: saver
            visible: !exports.running
            enabled: path.text !== ""
            type: "primary"
            size: "large"
            faIcon: "fa-floppy-o"
            text: qsTr("Export")
            onClicked: root.save()
        }

        ProgressStrip {
            id: stopper
            width: parent.width
            visible: exports.running
            text: "Please wait..."
            progress: exports.progress
            onCanceled: exports.cancel()
        }
    }

    Exports {
        id: exports

        property string target

        onFinished: root.showOutcome(error, cancelled)
    }
}
