// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The rows of the settings page, filled with what is stored when the page opens.
Sheet {
    id: root

    property string userEmail
    property string playerUid
    property alias projectName: projectField.text
    property alias hostName: hostField.text
    property alias sharingIndex: sharing.currentIndex

    readonly property string startScreen: startScreens.currentValue

    signal loginRequested()
    signal logoutRequested()
    signal sharingChosen(bool on)
    signal saveRequested()

    SettingsRow {
        label: "User Email:  "

        BGUI.Label {
            anchors.left: parent.left
            anchors.right: logout.left
            anchors.verticalCenter: logout.verticalCenter
            text: root.userEmail || qsTr("Nobody is logged in")
            textFormat: Text.PlainText
            muted: root.userEmail === ""
            elide: Text.ElideRight
            wrapMode: Text.NoWrap
        }

        BGUI.Button {
            id: logout
            anchors.right: parent.right
            text: root.userEmail === "" ? "Login" : "Logout"
            onClicked: {
                if (root.userEmail === "")
                    root.loginRequested();
                else
                    root.logoutRequested();
            }
        }
    }

    SettingsRow {
        label: "Run at Startup: "

        BGUI.CheckBox {
            objectName: "runAtStartup"
            Accessible.name: "Run at Startup"
            checked: CAPI.getRunAtStartup()
            onClicked: {
                CAPI.setRunAtStartup(checked);
                checked = CAPI.getRunAtStartup();
            }
        }
    }

    SettingsRow {
        label: "Cloud Sync:  "

        BGUI.RadioGroup {
            id: sharing
            width: parent.width
            model: ["None", "Cloud"]
            currentIndex: CAPI.getBSetting("shareFolder") ? 1 : 0
            onActivated: root.sharingChosen(index === 1)
        }
    }

    SettingsRow {
        label: "Start Screen: "

        BGUI.RadioGroup {
            id: startScreens

            readonly property int stored: indexOfValue(CAPI.getSSetting("doOnStart"))

            width: parent.width
            model: [{"text": "Play", "value": "play"}, {"text": "Edit", "value": "edit"},
                {"text": "Dash", "value": "dashboard"}, {"text": "Main", "value": ""}]
            Component.onCompleted: currentIndex = stored < 0 ? indexOfValue("") : stored
        }
    }

    SettingsRow {
        label: "Project Name:  "

        BGUI.Input {
            id: projectField
            objectName: "projectName"
            width: parent.width
            text: CAPI.getSSetting("lastProject")
        }
    }

    SettingsRow {
        label: "Host Name:  "

        BGUI.Input {
            id: hostField
            objectName: "hostName"
            text: root.playerUid.split("_")[0]
        }

        BGUI.Label {
            anchors.left: hostField.right
            anchors.right: parent.right
            anchors.leftMargin: 2 * BGUI.Theme.unit
            anchors.verticalCenter: hostField.verticalCenter
            size: "small"
            muted: true
            text: root.playerUid
            textFormat: Text.PlainText
            wrapMode: Text.WrapAnywhere
            maximumLineCount: 2
            elide: Text.ElideRight
        }
    }

    SettingsRow {
        label: "App version:  "

        BGUI.Label {
            height: BGUI.Theme.controlHeight("base")
            verticalAlignment: Text.AlignVCenter
            text: CAPI.getSSetting("version")
        }
    }

    SettingsRow {
        BGUI.Button {
            focus: true
            type: "primary"
            size: "large"
            text: "save"
            onClicked: root.saveRequested()
        }
    }
}
