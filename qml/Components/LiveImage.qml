// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media

/// A picture that enters and exits: it rises into its place from a slight zoom, on a ground of its own.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "LiveImage {
    width: 640
    height: 480
    source: 'qrc:///Nuvex/Components/icons/noImage.png'
    fillMode: Image.PreserveAspectCrop
    backColor: 'transparent'
    enterTime: 0
    exitTime: 0
}"

    property url source: "qrc:///Nuvex/Components/icons/noImage.png"
    property int fillMode: Image.PreserveAspectCrop
    /// Colour of the ground that the picture does not cover.
    property color backColor: "transparent"
    /// Milliseconds after which the picture enters, from the moment its slide or page is shown.
    property int enterTime: 0
    /// Milliseconds after which it exits; not later than `enterTime`: it stays.
    property int exitTime: 0

    width: 640
    height: 480
    Component.onCompleted: editor = Qt.createComponent("LiveImageEditor.qml")

    Appearance {
        id: appearance
        enterTime: root.enterTime
        exitTime: root.exitTime
    }

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: (1 - appearance.progress) * root.height * 0.08
        anchors.bottomMargin: -anchors.topMargin
        color: root.backColor
        opacity: appearance.progress
        visible: opacity > 0
        clip: true

        Picture {
            anchors.fill: parent
            address: Media.address(root.source)
            fillMode: root.fillMode
            scale: 1.12 - 0.12 * appearance.progress
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.source
        }
    }
}
