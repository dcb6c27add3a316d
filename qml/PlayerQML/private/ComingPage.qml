// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A page whose work is not in this version yet: says what is to come, and leads back.
FormPage {
    id: root

    property string backText: qsTr("Go back")
    property alias faIcon: state.faIcon
    property alias headline: state.title
    property alias text: state.text

    BGUI.EmptyState {
        id: state
        anchors.centerIn: parent
        width: Math.min(parent.width - 8 * BGUI.Theme.unit, 60 * BGUI.Theme.unit)

        BGUI.Button {
            focus: true
            type: "primary"
            size: "large"
            text: root.backText
            onClicked: root.back()
        }
    }
}
