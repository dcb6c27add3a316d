// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// One property of the selected item as source.
ComingPage {
    objectName: "PropertyCodeEditor"
    title: qsTr("Property")
    faIcon: "fa-code"
    headline: qsTr("The property editor is on its way")
    text: qsTr("Here you will write a property as source.")
}
