// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The player's settings. Most are stored by the save button, which as a rule ends in a restart.
FormPage {
    id: root

    readonly property string playerUid: CAPI.getSSetting("playerUID")
    readonly property string userEmail: CAPI.getSSetting("userEmail")

    function showBusyWhileImporting() {
        if (CAPI.extractFinished)
            busy.running = false;
        else
            busy.start("Please wait...");
    }

    function logOut() {
        CAPI.setSetting("userEmail", "");
        CAPI.reStartApp();
    }

    function setSharing(on) {
        CAPI.setSetting("shareFolder", on);
        if (!on || userEmail !== "")
            return;
        form.sharingIndex = -1;
        message.text = qsTr("The cloud needs an account. Log in first.");
    }

    function renameProject() {
        const oldName = CAPI.getSSetting("lastProject");
        const newName = form.projectName;
        if (newName === oldName)
            return;
        if (CAPI.renameDir(oldName, newName)) {
            CAPI.setSetting("lastProject", newName);
            CAPI.trimComponentCache();
        } else {
            form.projectName = oldName;
        }
    }

    // Names a folder of the cloud and a place of the database.
    function isHostName(name) {
        return !/[\/#$\[\]\x00-\x1f\x7f]/.test(name) && /[^.\s]/.test(name);
    }

    function save() {
        if (form.hostName !== "" && !isHostName(form.hostName)) {
            message.text = qsTr("A host name needs a letter or digit, and cannot have / # $ [ ] in it.");
            return;
        }
        CAPI.setSetting("doOnStart", form.startScreen);
        renameProject();
        if (form.hostName === "") {
            back();
            return;
        }
        CAPI.setSetting("playerUID", form.hostName + "_" + playerUid.split("_").pop());
        CAPI.reStartApp();
    }

    objectName: "SettingsPage"
    title: qsTr("Settings")
    Component.onCompleted: showBusyWhileImporting()

    SettingsForm {
        id: form
        userEmail: root.userEmail
        playerUid: root.playerUid
        onLoginRequested: root.shell.open("LoginPage")
        onLogoutRequested: root.logOut()
        onSharingChosen: root.setSharing(on)
        onSaveRequested: root.save()
    }

    FooterMessage {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
    }

    Connections {
        target: CAPI

        function onOnExtractFinishedChanged() {
            root.showBusyWhileImporting();
        }
    }
}
