// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor.panel 1.0
import "transitions.js" as Transitions

/// The rows of everything that shows slides in turn.
Column {
    readonly property Item form: parent.form

    width: parent.width
    spacing: parent.spacing

    ChoiceRow {
        name: "transType"
        label: qsTr("Transition")
        choices: Transitions.names.map(name => ({ text: Values.words(name), is: name }))
    }
    TimeRow {
        name: "transTime"
        label: qsTr("Duration")
        to: 10
        step: 0.1
    }
    TimeRow {
        name: "offsetTime"
        label: qsTr("First slide")
        from: -60
        to: 60
    }
    CheckRow {
        name: "running"
        label: qsTr("Running")
    }
}
