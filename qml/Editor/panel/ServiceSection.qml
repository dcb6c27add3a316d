// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "values.js" as Values

/// Where a network item gets its answers: a service, or a file of the project.
Section {
    id: root

    property string name

    title: qsTr("Service")
    isOpen: false

    TextRow {
        name: root.name
        label: qsTr("Address")
    }
    FileRow {
        name: root.name
        label: qsTr("Or a file")
        kind: "feed"
    }
}
