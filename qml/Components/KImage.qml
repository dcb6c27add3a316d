// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media
import "private/presence.js" as Presence

/// A picture under a slowly moving camera: it zooms from one scale to the other while drifting to a side, and back,
/// towards another side each time. What moves is a Picture inside, which all of Image's properties stand for.
Image {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "KImage {
    width: 640
    height: 480
    source: 'qrc:///Nuvex/Components/icons/noImage.png'
    kenburnsEnable: true
    kScale0: 1
    kScale1: 1.25
    kTime: 12000
}"

    property url source: "qrc:///Nuvex/Components/icons/noImage.png"
    property alias fillMode: picture.fillMode
    property alias horizontalAlignment: picture.horizontalAlignment
    property alias verticalAlignment: picture.verticalAlignment
    property alias mirror: picture.mirror
    property alias smooth: picture.smooth
    property alias mipmap: picture.mipmap
    property alias sourceSize: picture.sourceSize
    property alias sourceClipRect: picture.sourceClipRect
    property alias currentFrame: picture.currentFrame
    readonly property alias frameCount: picture.frameCount
    property alias cache: picture.cache
    property alias asynchronous: picture.asynchronous
    property alias autoTransform: picture.autoTransform
    readonly property alias status: picture.status
    readonly property alias progress: picture.progress
    readonly property alias paintedWidth: picture.paintedWidth
    readonly property alias paintedHeight: picture.paintedHeight
    readonly property alias implicitWidth: picture.implicitWidth
    readonly property alias implicitHeight: picture.implicitHeight
    /// Course of the movement, of Easing's types.
    property int easingType: Easing.InOutSine
    /// Whether the camera moves.
    property bool kenburnsEnable: true
    /// Scale at the beginning and at the turning point.
    property real kScale0: 1
    property real kScale1: 1.25
    /// Duration of one way in milliseconds.
    property int kTime: 12000

    readonly property bool onAir: visible && Presence.presenceOf(root) === Presence.shown
    readonly property bool moves: onAir && kenburnsEnable && kTime > 0
    /// How far the camera is on its way, 0 to 1.
    property real travelled: 0
    readonly property real zoom: bounded(kScale0 + (kScale1 - kScale0) * travelled)
    // The side that the camera drifts to, changed at the beginning of each way, where there is no room to drift.
    property int side: 0
    readonly property var sides: [[1, 1], [-1, -0.6], [-0.7, 1], [1, -1]]
    readonly property var way: sides[Math.abs(side) % sides.length]

    function bounded(scale) {
        return isFinite(scale) ? Math.max(0.1, Math.min(8, scale)) : 1;
    }

    // How far the zoomed picture can go to a side without uncovering the ground.
    function drift(length, direction) {
        return Math.max(0, zoom - 1) / 2 * length * travelled * direction * 0.8;
    }

    width: implicitWidth
    height: implicitHeight
    clip: true
    Component.onCompleted: editor = Qt.createComponent("KImageEditor.qml")

    Picture {
        id: picture
        x: root.drift(width, root.way[0])
        y: root.drift(height, root.way[1])
        width: root.width
        height: root.height
        address: Media.address(root.source)
        fillMode: Image.PreserveAspectCrop
        scale: root.zoom
    }

    SequentialAnimation {
        running: root.moves
        loops: Animation.Infinite

        NumberAnimation {
            target: root
            property: "travelled"
            from: 0
            to: 1
            duration: Math.max(1, root.kTime)
            easing.type: root.easingType
        }
        NumberAnimation {
            target: root
            property: "travelled"
            to: 0
            duration: Math.max(1, root.kTime)
            easing.type: root.easingType
        }
        ScriptAction {
            script: root.side = (root.side + 1) % root.sides.length
        }
    }

    Component {
        id: preview

        PicturePreview {
            source: root.source
        }
    }
}
