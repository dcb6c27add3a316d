// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"
import "private/press.js" as Press

/// A row of a list: icon, text, a second line of detail, and what is declared inside it at the right end. Where rows
/// have a `pictureWidth`, the icon stands in the middle of that place until there is a `picture`.
/// `highlighted` marks the chosen row. Space and Enter click it.
T.ItemDelegate {
    id: root

    property string size: "base"
    property string faIcon
    property string detail
    property string family: Theme.fontFamily
    /// Whether the text stands out, as a head does.
    property bool strong: highlighted
    property url picture
    property real pictureWidth: 0
    property color iconColor: highlighted ? Theme.accent : Theme.mutedInk
    property int elide: Text.ElideRight
    default property alias trailing: tail.data

    implicitWidth: ListView.view ? ListView.view.width : 40 * Theme.unit
    implicitHeight: Math.max(implicitContentHeight + topPadding + bottomPadding, Theme.touchTarget
                             - (Theme.reach(size, 0) > 0 ? 0 : Theme.unit))
    verticalPadding: Theme.unit / 2
    leftPadding: Theme.padding(size)
    rightPadding: Theme.padding(size) + (tail.width > 0 ? tail.width + 1.5 * Theme.unit : 0)
    spacing: Theme.unit
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    Accessible.name: detail === "" ? text : text + ", " + detail

    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    contentItem: Item {
        implicitWidth: lines.x + lines.implicitWidth
        implicitHeight: lines.implicitHeight

        FontAwesomeIcon {
            id: icon
            width: root.pictureWidth || font.pixelSize * 1.4
            anchors.verticalCenter: parent.verticalCenter
            visible: root.faIcon !== "" && !picture.visible
            faIcon: root.faIcon
            size: root.size
            color: root.iconColor
        }

        Image {
            id: picture
            width: root.pictureWidth
            height: parent.height
            visible: status === Image.Ready
            source: root.picture
            sourceSize.width: 2 * width
            asynchronous: true
            fillMode: Image.PreserveAspectFit
            mipmap: true
        }

        Column {
            id: lines
            x: root.pictureWidth > 0 ? root.pictureWidth + 2 * root.spacing
                                     : (icon.visible ? icon.width + root.spacing : 0)
            width: parent.width - x
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                text: root.text
                textFormat: Text.PlainText
                size: root.size
                font.family: root.family
                strong: root.strong
                wrapMode: Text.NoWrap
                elide: root.elide
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: root.detail
                textFormat: Text.PlainText
                size: "small"
                muted: true
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
            }
        }
    }

    background: Rectangle {
        color: root.highlighted ? Theme.tint : (root.down ? Theme.sunken
                                                          : (root.hovered ? bs["dropdown-link-hover-bg"]
                                                                          : "transparent"))

        Rectangle {
            width: 3 * dp
            height: parent.height
            visible: root.highlighted
            color: Theme.accent
        }

        FocusRing {
            visible: root.visualFocus
            gap: -2 * border.width
        }
    }

    Row {
        id: tail
        anchors.right: parent.right
        anchors.rightMargin: Theme.padding(root.size) + Theme.unit / 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit / 2
    }
}
