// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The players of the account.
ComingPage {
    objectName: "ConnectedPlayers"
    title: qsTr("Dashboard")
    faIcon: "fa-inbox"
    headline: qsTr("The dashboard is on its way")
    text: qsTr("Here you will see every player of your account, what it shows and when it was last heard of.")
}
