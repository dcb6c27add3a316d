// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import Nuvex.GUI 1.0 as BGUI
import Nuvex.Native 1.1
import "private"
import "SharedVars.js" as SS

/// The projects to choose from: those on this computer, the store's and the account's.
FormPage {
    id: root

    property int tab: 0
    // What the database tells of the account's projects: objects with "revision" by their keys.
    property var published: ({})

    readonly property string user: CAPI.getSSetting("userEmail")
    readonly property bool hasAccount: Deployment.available && user !== ""
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

    function askToRemove(name) {
        question.project = name;
        question.open();
    }

    function isHere(name) {
        return CAPI.getProjectList().indexOf(name) >= 0;
    }

    // An archive takes the place of the project of its name.
    function getArchive(source, name) {
        replacement.source = source;
        replacement.project = name;
        if (isHere(name))
            replacement.open();
        else
            transfer.getArchive(source, name);
    }

    function browse() {
        notice.text = "";
        shell.open("ImportPage");
    }

    function tell(type, text) {
        notice.type = type;
        notice.text = text;
    }

    // The keyboard goes back to the tab's list when what it was in has gone.
    function focusTab() {
        (tab === 0 ? local : tabRow).forceActiveFocus(Qt.TabFocusReason);
    }

    function readRevisions() {
        SS.firebaseGet(SS.projectsPath(user), (success, records) => published = success && records || {}, timeOut);
    }

    function publishedRevision(name) {
        const record = published[SS.key(name)];
        return record && record.revision !== undefined ? String(record.revision) : "";
    }

    function revisionDetail(name) {
        const here = SS.localRevision(name);
        const there = publishedRevision(name);
        if (there === "")
            return here === "" ? "" : qsTr("revision %1 is here").arg(here);
        if (here === there)
            return qsTr("revision %1, which is here").arg(there);
        return here === "" ? qsTr("revision %1").arg(there) : qsTr("revision %1, here is %2").arg(there).arg(here);
    }

    function showArrived(name) {
        local.reload();
        local.select(name);
        tab = 0;
        if (notice.text === "")
            tell("success", qsTr("%1 is on this computer now.").arg(name));
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
        stills.make(projects);
    }

    objectName: "ProjectsPage"
    title: qsTr("Projects")
    // No binding: a choice by the user would end it.
    onTabChanged: tabRow.currentIndex = tab
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
        focus: root.tab !== 0
        onActivated: {
            notice.text = "";
            root.tab = index;
        }
    }

    Column {
        id: news
        anchors.top: tabRow.bottom
        anchors.topMargin: 1.5 * BGUI.Theme.unit
        anchors.horizontalCenter: parent.horizontalCenter
        width: local.width
        spacing: 1.5 * BGUI.Theme.unit
        bottomPadding: notice.visible || imports.running || transfer.visible ? 1.5 * BGUI.Theme.unit : 0

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
                root.focusTab();
            }
        }

        CloudTransfer {
            id: transfer
            width: parent.width
            onTold: root.tell(type, text)
            onVisibleChanged: {
                if (visible)
                    forceActiveFocus(Qt.TabFocusReason);
                else
                    root.focusTab();
            }
            onArrived: root.showArrived(project)
            onPublished: root.readRevisions()
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
        canPublish: root.hasAccount && !transfer.running
        onChosen: root.choose(name)
        onPublishRequested: transfer.publish(name)
        onRemoveRequested: root.askToRemove(name)
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

    CloudList {
        anchors.fill: local
        visible: root.tab === 1
        isStore: true
        obstacle: Deployment.available ? "" : qsTr("No cloud is set up")
        remedy: qsTr("The store's ready-made projects need a cloud. A new one can begin as a template.")
        remedyText: qsTr("New project")
        emptyTitle: qsTr("The store is empty")
        emptyText: qsTr("Whoever looks after this cloud can put archives of projects into it.")
        canChoose: !transfer.running && !imports.running
        detailOf: name => root.isHere(name) ? qsTr("on this computer") : ""
        onChosen: root.getArchive(source, name)
        onRemedyChosen: root.shell.open("NewProjectPage")
    }

    CloudList {
        anchors.fill: local
        visible: root.tab === 2
        obstacle: Deployment.available ? (root.hasAccount ? "" : qsTr("Nobody is logged in"))
                                       : qsTr("No cloud is set up")
        remedy: Deployment.available ? qsTr("Log in to see the projects of your account.")
                                     : qsTr("The projects of an account need a cloud.")
        remedyText: Deployment.available ? "Login" : ""
        emptyTitle: qsTr("Nothing is published yet")
        emptyText: qsTr("Press the cloud beside a project of the tab %1 to publish it.").arg(root.tabs[0])
        canChoose: !transfer.running
        detailOf: name => root.revisionDetail(name)
        onAboutToList: root.readRevisions()
        onChosen: transfer.getProject(source, name, root.publishedRevision(name))
        onRemedyChosen: root.shell.open("LoginPage")
    }

    FooterMessage {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
    }

    BGUI.MessageBox {
        id: question

        property string project

        type: "danger"
        title: qsTr("Delete %1?").arg(project)
        text: qsTr("The project's folder on this computer is deleted with all its files.")
        acceptText: qsTr("Delete")
        rejectText: qsTr("Keep")
        onAccepted: root.remove(project)
    }

    BGUI.MessageBox {
        id: replacement

        property string source
        property string project

        type: "danger"
        title: qsTr("Replace %1?").arg(project)
        text: qsTr("A project of this name is on this computer. With all that was changed in it, it gives way to the "
                   + "store's.")
        acceptText: qsTr("Replace")
        rejectText: qsTr("Keep")
        onAccepted: transfer.getArchive(source, project)
    }

    Imports {
        id: imports
        onFinished: root.showImported(archive, error, projects, cancelled)
    }

    StillMaker {
        id: stills
        onMade: local.stillMade(project)
    }

    RequestTimer {
        id: timeOut
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
