// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// The properties of the item that the touch editor has selected.
ComingPage {
    objectName: "PropertyEditor"
    title: qsTr("Properties")
    faIcon: "fa-list-alt"
    headline: qsTr("The property list is on its way")
    text: qsTr("Here you will see and change the properties of the selected item.")
}
