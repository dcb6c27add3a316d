// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A sheet on the ground of a page, with a title; what is declared inside stands below it, one under the other.
Rectangle {
    id: root

    property string title
    property real padding: 2 * Theme.unit
    property alias spacing: content.spacing
    readonly property real contentWidth: width - 2 * padding
    default property alias content: content.data

    implicitWidth: 48 * Theme.unit
    implicitHeight: content.y + content.height + padding
    radius: Theme.radius("large")
    color: Theme.surface
    border.width: Math.max(1, dp)
    border.color: Theme.line

    Label {
        id: heading
        x: root.padding
        y: root.padding
        width: root.contentWidth
        visible: text !== ""
        text: root.title
        textFormat: Text.PlainText
        size: "large"
        strong: true
    }

    Column {
        id: content
        x: root.padding
        y: root.title === "" ? root.padding : heading.y + heading.height + 1.5 * Theme.unit
        width: root.contentWidth
        spacing: 1.5 * Theme.unit
    }
}
