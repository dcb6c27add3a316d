// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// The numbers of the lines that are in view, beside an edit whose lines are not wrapped.
Rectangle {
    id: root

    property Item edit
    property real scroll: 0
    property int currentLine: 0
    property int errorLine: 0

    readonly property real lineHeight: edit.contentHeight / Math.max(1, edit.lineCount)
    readonly property int firstLine: Math.max(0, Math.floor((scroll - edit.topPadding) / lineHeight))

    color: Theme.ground

    Repeater {
        model: Math.max(0, Math.min(root.edit.lineCount - root.firstLine,
                                    Math.ceil(root.height / root.lineHeight) + 1))

        Rectangle {
            readonly property int line: root.firstLine + index + 1
            readonly property bool isError: line === root.errorLine

            y: root.edit.topPadding - root.scroll + (line - 1) * root.lineHeight
            width: root.width
            height: root.lineHeight
            color: isError ? Theme.danger : (line === root.currentLine ? Theme.sunken : "transparent")

            Label {
                anchors.fill: parent
                anchors.rightMargin: Theme.unit
                text: parent.line
                color: parent.isError ? Theme.surface
                                      : (parent.line === root.currentLine ? Theme.strongInk : Theme.mutedInk)
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                font.family: root.edit.font.family
                font.pixelSize: root.edit.font.pixelSize
            }
        }
    }
}
