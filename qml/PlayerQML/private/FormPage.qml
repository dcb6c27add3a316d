// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A page with a header that names it and leads back, a body, and a busy indicator over both. While the indicator
/// runs the body takes no input; Escape still goes back.
StackPage {
    id: root

    property string title
    property string subtitle
    property alias busy: indicator
    property alias actions: header.actions
    default property alias content: body.data

    Rectangle {
        anchors.fill: parent
        color: BGUI.Theme.ground
    }

    BGUI.PageHeader {
        id: header
        z: 1
        title: root.title
        subtitle: root.subtitle
        onBack: root.back()
    }

    FocusScope {
        id: body
        anchors.fill: parent
        anchors.topMargin: header.height
        focus: true
        enabled: !indicator.running
    }

    BGUI.CustomBuzyInd {
        id: indicator
    }
}
