// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import Nuvex.GUI 1.0 as BGUI
import "private"
import "private/identity.js" as Identity
import "private/limits.js" as Limits
import "SharedVars.js" as SS

/// Signing in to the account, or making one. A success restarts the program, which is the account's then.
FormPage {
    id: root

    /// Opens what a start without an account goes on with, where there is no cloud to log in to; null for nothing.
    property var start: null

    function goOn() {
        const next = start;
        back();
        if (next)
            next();
    }

    function send(call) {
        form.problem = "";
        busy.start(qsTr("Connecting..."));
        call(form.email.trim(), form.password, takeAnswer, timeOut);
    }

    function takeAnswer(success, result) {
        if (success) {
            CAPI.setSetting("lastEmail", result.email);
            CAPI.reStartApp();
            return;
        }
        busy.finish(Identity.text(result), true);
        form.problem = Identity.words(result);
        form.focusField();
    }

    function back() {
        timeOut.abort();
        shell.pop();
    }

    objectName: "LoginPage"
    title: qsTr("Login")
    onActiveChanged: {
        if (active && Deployment.available)
            form.focusField();
    }

    LoginForm {
        id: form
        visible: Deployment.available
        focus: visible
        email: CAPI.getSSetting("lastEmail")
        onLoginRequested: root.send(SS.login)
        onSignUpRequested: root.send(SS.signupNewUser)
        onSkipped: root.back()
    }

    BGUI.EmptyState {
        anchors.centerIn: parent
        width: Math.min(parent.width - 8 * BGUI.Theme.unit, 60 * BGUI.Theme.unit)
        visible: !Deployment.available
        faIcon: "fa-cloud"
        title: Deployment.fault === "" ? qsTr("No cloud is set up") : qsTr("The deployment file is not used")
        text: (Deployment.fault === "" ? "" : Deployment.fault + "\n\n")
              + qsTr("This player works on its own: projects stay on this computer, and no account is needed.")
              + (root.start ? "\n\n" + qsTr("Its start screen opens in a few seconds.") : "")

        BGUI.Button {
            focus: !Deployment.available
            type: "primary"
            size: "large"
            text: qsTr("Continue without an account")
            onClicked: root.goOn()
        }
    }

    // A wall without a cloud comes back by itself after a power cut.
    Timer {
        interval: Limits.startWithoutAccount
        running: root.active && !Deployment.available && root.start !== null
        onTriggered: root.goOn()
    }

    RequestTimer {
        id: timeOut
    }
}
