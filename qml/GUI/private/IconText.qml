// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// An icon beside a text, or above it, centred together. The text is cut with an ellipsis where room is short.
/// While busy a spinner takes the icon's place.
Item {
    id: root

    property string text
    property string faIcon
    property string size: "base"
    property string iconSize: size
    property color color: Theme.ink
    property bool busy: false
    property bool stacked: false
    property bool strong: false
    property real growth: 1

    readonly property bool hasIcon: faIcon !== "" || busy
    readonly property bool hasText: text !== ""
    readonly property real textWidth: hasText ? Math.ceil(caption.implicitWidth) : 0
    readonly property real beside: hasIcon && !stacked ? mark.width + (hasText ? layout.columnSpacing : 0) : 0

    implicitWidth: Math.ceil(stacked ? Math.max(mark.width, textWidth) : beside + textWidth)
    implicitHeight: layout.implicitHeight

    Grid {
        id: layout
        anchors.centerIn: parent
        columns: root.stacked || !root.hasIcon || !root.hasText ? 1 : 2
        columnSpacing: 0.45 * caption.font.pixelSize
        rowSpacing: 0.25 * caption.font.pixelSize
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Item {
            id: mark
            width: Math.max(icon.implicitWidth, icon.font.pixelSize)
            height: icon.font.pixelSize * 1.2
            visible: root.hasIcon

            FontAwesomeIcon {
                id: icon
                anchors.centerIn: parent
                visible: !root.busy
                faIcon: root.faIcon
                font.pixelSize: Math.round(Theme.fontSize(root.iconSize) * root.growth)
                color: root.color
            }

            Spinner {
                anchors.centerIn: parent
                width: icon.font.pixelSize
                height: width
                visible: root.busy
                color: root.color
            }
        }

        Text {
            id: caption
            width: Math.min(root.textWidth, root.width - root.beside)
            visible: root.hasText
            text: root.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: root.color
            font.family: Theme.fontFamily
            font.pixelSize: Math.round(Theme.fontSize(root.size) * root.growth)
            font.weight: root.strong ? Font.DemiBold : Font.Normal
        }
    }
}
