// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Deployment 1.0
import "private"

/// Signing in to the account.
ComingPage {
    objectName: "LoginPage"
    title: qsTr("Login")
    faIcon: Deployment.available ? "fa-sign-in" : "fa-cloud"
    headline: Deployment.available ? qsTr("Signing in is on its way") : qsTr("No cloud is set up")
    text: Deployment.available
          ? qsTr("Here you will sign in to your account. Until then this player works on its own.")
          : qsTr("This player works on its own: projects stay on this computer, and no account is needed.")
    backText: qsTr("Continue without an account")
}
