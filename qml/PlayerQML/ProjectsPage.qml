// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "private"

/// The projects to choose from: those on this computer, the store's and the account's.
FormPage {
    id: root

    property int tab: 0

    readonly property var tabs: [qsTr("Local"), "Store", "Cloud"]

    function choose(name) {
        CAPI.setSetting("lastProject", name);
        back();
    }

    function remove(name) {
        if (CAPI.getSSetting("lastProject") === name)
            CAPI.setSetting("lastProject", "");
        if (CAPI.removeProject(name))
            message.text = "";
        else
            message.text = qsTr("The project %1 could not be deleted completely.").arg(name);
        local.reload();
    }

    function browse() {
        notice.text = "";
        shell.open("ImportPage");
    }

    function tell(type, text) {
        notice.type = type;
        notice.text = text;
    }

    function showImported(archive, error, projects, cancelled) {
        const name = archive.split("/").pop();
        if (error !== "")
            tell("danger", qsTr("%1 could not be imported: %2.").arg(name).arg(error));
        else if (projects.length === 0 && !cancelled)
            tell("warning", qsTr("%1 holds no project's folder. Its files are in %2 now.")
                            .arg(name).arg(CAPI.getWorkDirectory()));
        if (projects.length === 0)
            return;
        local.reload();
        local.select(projects[0]);
        tab = 0;
    }

    objectName: "ProjectsPage"
    title: qsTr("Projects")
    Component.onCompleted: tab = local.count === 0 ? 1 : 0

    actions: [
        BGUI.Button {
            visible: false
            faIcon: "fa-upload"
            text: "Import"
            onClicked: root.browse()
        },
        BGUI.Button {
            faIcon: "fa-plus"
            text: qsTr("New")
            onClicked: root.shell.open("NewProjectPage")
        }
    ]

    BGUI.SwitchTabs {
        id: tabRow
        anchors.horizontalCenter: parent.horizontalCenter
        y: 2 * BGUI.Theme.unit
        width: local.width
        size: "large"
        model: root.tabs
        currentIndex: root.tab
        focus: root.tab !== 0
        onActivated: root.tab = index
    }

    Column {
        id: news
        anchors.top: tabRow.bottom
        anchors.topMargin: 1.5 * BGUI.Theme.unit
        anchors.horizontalCenter: parent.horizontalCenter
        width: local.width
        spacing: 1.5 * BGUI.Theme.unit
        bottomPadding: notice.visible || imports.running ? 1.5 * BGUI.Theme.unit : 0

        BGUI.Notice {
            id: notice
            objectName: "importNotice"
            closable: true
        }

        ProgressStrip {
            width: parent.width
            visible: imports.running
            text: qsTr("Importing %1").arg(imports.archive.split("/").pop())
            progress: imports.progress
            onCanceled: {
                imports.cancel();
                (root.tab === 0 ? local : tabRow).forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    ProjectList {
        id: local
        anchors.top: news.bottom
        anchors.bottom: message.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 4 * BGUI.Theme.unit, 110 * BGUI.Theme.unit)
        visible: root.tab === 0
        focus: visible
        onChosen: root.choose(name)
        onRemoveRequested: root.remove(name)
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.tab === 0 && local.count === 0
        faIcon: "fa-folder-open-o"
        title: qsTr("There is no project on this computer")
        text: qsTr("Press Ctrl+N to make one, Ctrl+I to import a zip archive, or put a folder with a main.qml into %1.")
              .arg(CAPI.getWorkDirectory())
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.tab === 1
        faIcon: "fa-shopping-cart"
        title: Deployment.available ? qsTr("The store is on its way") : qsTr("No cloud is set up")
        text: Deployment.available ? qsTr("Here you will find ready-made projects to start from.")
                                   : qsTr("The store's ready-made projects need a cloud.")
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: parent.width - 8 * BGUI.Theme.unit
        visible: root.tab === 2
        faIcon: "fa-cloud"
        title: Deployment.available ? qsTr("Cloud projects are on their way") : qsTr("No cloud is set up")
        text: Deployment.available ? qsTr("Here you will find the projects of your account.")
                                   : qsTr("The projects of an account need a cloud.")
    }

    FooterMessage {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
    }

    Imports {
        id: imports
        onFinished: root.showImported(archive, error, projects, cancelled)
    }

    Shortcut {
        sequence: "Ctrl+N"
        enabled: root.active
        onActivated: root.shell.open("NewProjectPage")
    }

    Shortcut {
        sequence: "Ctrl+I"
        enabled: root.active
        onActivated: root.browse()
    }
}
