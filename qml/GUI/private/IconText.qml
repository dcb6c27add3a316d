// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

// An icon beside a text, or above it, centred together. The text is cut with an ellipsis where room is short.
// While busy a spinner takes the icon's place.
Item {
    id: pair

    property string text
    property string faIcon
    property string size: "base"
    property string iconSize: size
    property color color: Theme.ink
    property bool busy: false
    property bool stacked: false
    property bool strong: false

    readonly property bool hasIcon: faIcon !== "" || busy
    readonly property bool hasText: text !== ""
    readonly property real textWidth: hasText ? Math.ceil(caption.implicitWidth) : 0
    readonly property real beside: hasIcon && !stacked ? mark.width + (hasText ? layout.columnSpacing : 0) : 0

    implicitWidth: Math.ceil(stacked ? Math.max(mark.width, textWidth) : beside + textWidth)
    implicitHeight: layout.implicitHeight

    Grid {
        id: layout
        anchors.centerIn: parent
        columns: pair.stacked || !pair.hasIcon || !pair.hasText ? 1 : 2
        columnSpacing: 0.45 * caption.font.pixelSize
        rowSpacing: 0.25 * caption.font.pixelSize
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Item {
            id: mark
            width: Math.max(icon.implicitWidth, icon.font.pixelSize)
            height: icon.font.pixelSize * 1.2
            visible: pair.hasIcon

            FontAwesomeIcon {
                id: icon
                anchors.centerIn: parent
                visible: !pair.busy
                faIcon: pair.faIcon
                size: pair.iconSize
                color: pair.color
            }

            Spinner {
                anchors.centerIn: parent
                width: icon.font.pixelSize
                height: width
                visible: pair.busy
                color: pair.color
            }
        }

        Text {
            id: caption
            width: Math.min(pair.textWidth, pair.width - pair.beside)
            visible: pair.hasText
            text: pair.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: pair.color
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSize(pair.size)
            font.weight: pair.strong ? Font.DemiBold : Font.Normal
        }
    }
}
