// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// E-mail and password. Enter goes on from one field to the next, and signs in.
Sheet {
    id: root

    property alias email: emailField.text
    property alias password: passwordField.text
    // What went wrong, in words.
    property alias problem: notice.text

    readonly property bool isComplete: email.trim() !== "" && password !== ""

    signal loginRequested()
    signal signUpRequested()
    signal skipped()

    // Where one goes on writing.
    function focusField() {
        (emailField.text === "" ? emailField : passwordField).forceActiveFocus(Qt.TabFocusReason);
    }

    maximumWidth: 72 * BGUI.Theme.unit

    BGUI.Label {
        width: parent.width
        size: "h4"
        text: qsTr("Your account")
    }

    BGUI.Label {
        width: parent.width
        muted: true
        text: qsTr("With an account projects are published to the cloud, and players show them.")
    }

    BGUI.Notice {
        id: notice
        objectName: "loginProblem"
        type: "danger"
    }

    BGUI.Input {
        id: emailField
        objectName: "email"
        width: parent.width
        size: "large"
        focus: true
        faIcon: "fa-user"
        placeholderText: qsTr("E-mail")
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
        onAccepted: passwordField.forceActiveFocus(Qt.TabFocusReason)
    }

    BGUI.Input {
        id: passwordField
        objectName: "password"
        width: parent.width
        size: "large"
        faIcon: "fa-lock"
        placeholderText: qsTr("Password")
        echoMode: TextInput.Password
        inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        onAccepted: {
            if (root.isComplete)
                root.loginRequested();
        }
    }

    Flow {
        width: parent.width
        spacing: BGUI.Theme.unit

        BGUI.Button {
            enabled: root.isComplete
            type: "primary"
            size: "large"
            faIcon: "fa-sign-in"
            text: "Login"
            onClicked: root.loginRequested()
        }

        BGUI.Button {
            enabled: root.isComplete
            size: "large"
            text: "Sign Up"
            onClicked: root.signUpRequested()
        }

        BGUI.Button {
            size: "large"
            type: "link"
            text: qsTr("Continue without an account")
            onClicked: root.skipped()
        }
    }
}
