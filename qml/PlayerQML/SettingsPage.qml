// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

// The player's settings, read when the page opens. Most are stored by the save button.
FormPage {
    id: settingsPage

    readonly property real labelWidth: 20 * BGUI.Theme.unit
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
        sharing.currentIndex = -1;
        message.text = qsTr("The cloud needs an account. Log in first.");
    }

    // A project's name is the name of one folder.
    function isFolderName(name) {
        return name !== "." && name !== ".." && !/[\/\\]/.test(name);
    }

    function renameProject() {
        const oldName = CAPI.getSSetting("lastProject");
        const newName = projectName.text;
        if (newName === oldName)
            return;
        if (isFolderName(newName) && CAPI.renameDir(oldName, newName)) {
            CAPI.setSetting("lastProject", newName);
            CAPI.trimComponentCache();
        } else {
            projectName.text = oldName;
        }
    }

    function save() {
        CAPI.setSetting("doOnStart", startScreen.currentValue);
        renameProject();
        if (hostName.text === "") {
            back();
            return;
        }
        CAPI.setSetting("playerUID", hostName.text + "_" + playerUid.split("_").pop());
        CAPI.reStartApp();
    }

    objectName: "SettingsPage"
    title: qsTr("Settings")
    Component.onCompleted: showBusyWhileImporting()

    Sheet {
        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "User Email:  "

            BGUI.Label {
                anchors.left: parent.left
                anchors.right: logout.left
                anchors.verticalCenter: logout.verticalCenter
                text: settingsPage.userEmail || qsTr("Nobody is logged in")
                textFormat: Text.PlainText
                muted: settingsPage.userEmail === ""
                elide: Text.ElideRight
                wrapMode: Text.NoWrap
            }

            BGUI.Button {
                id: logout
                anchors.right: parent.right
                text: "Logout"
                onClicked: settingsPage.logOut()
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "Run at Startup: "

            BGUI.CheckBox {
                id: runAtStartup
                text: " "
                Accessible.name: "Run at Startup"
                checked: CAPI.getRunAtStartup()
                onClicked: {
                    CAPI.setRunAtStartup(checked);
                    checked = CAPI.getRunAtStartup();
                }
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "Cloud Sync:  "

            BGUI.RadioGroup {
                id: sharing
                width: parent.width
                model: ["None", "Cloud"]
                currentIndex: CAPI.getBSetting("shareFolder") ? 1 : 0
                onActivated: settingsPage.setSharing(index === 1)
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "Start Screen: "

            BGUI.RadioGroup {
                id: startScreen
                width: parent.width
                model: [{"text": "Play", "value": "play"}, {"text": "Edit", "value": "edit"},
                    {"text": "Dash", "value": "dashboard"}, {"text": "Main", "value": ""}]
                currentIndex: Math.max(0, indexOfValue(CAPI.getSSetting("doOnStart")))
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "Project Name:  "

            BGUI.Input {
                id: projectName
                width: parent.width
                text: CAPI.getSSetting("lastProject")
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "Host Name:  "

            BGUI.Input {
                id: hostName
                text: settingsPage.playerUid.split("_")[0]
            }

            BGUI.Label {
                anchors.left: hostName.right
                anchors.right: parent.right
                anchors.leftMargin: 2 * BGUI.Theme.unit
                anchors.verticalCenter: hostName.verticalCenter
                size: "small"
                muted: true
                text: settingsPage.playerUid
                textFormat: Text.PlainText
                wrapMode: Text.WrapAnywhere
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            label: "App version:  "

            BGUI.Label {
                height: BGUI.Theme.controlHeight("base")
                verticalAlignment: Text.AlignVCenter
                text: CAPI.getSSetting("version")
            }
        }

        BGUI.FormRow {
            labelWidth: settingsPage.labelWidth
            BGUI.Button {
                focus: true
                type: "primary"
                size: "large"
                text: "save"
                onClicked: settingsPage.save()
            }
        }
    }

    FooterMessage {
        id: message
        anchors.bottom: parent.bottom
        width: parent.width
    }

    Connections {
        target: CAPI

        function onOnExtractFinishedChanged() {
            settingsPage.showBusyWhileImporting();
        }
    }
}
