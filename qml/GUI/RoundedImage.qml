// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A picture with rounded corners; half the shorter side as `radius` makes it round.
Item {
    id: root

    property alias source: picture.source
    property alias fillMode: picture.fillMode
    property alias status: picture.status
    property alias sourceSize: picture.sourceSize
    property alias asynchronous: picture.asynchronous
    property real radius: Theme.radius("large")

    implicitWidth: picture.implicitWidth
    implicitHeight: picture.implicitHeight
    Accessible.role: Accessible.Graphic

    Image {
        id: picture
        anchors.fill: parent
        visible: false
        layer.enabled: status === Image.Ready
        fillMode: Image.PreserveAspectCrop
        smooth: true
        mipmap: true
    }

    // Drawn at twice the size and smoothed down: the shader's edge is hard.
    ShaderEffect {
        property var _image: picture
        property real _rX: Math.min(0.5, root.radius / Math.max(1, root.width))
        property real _rY: Math.min(0.5, root.radius / Math.max(1, root.height))

        anchors.fill: parent
        visible: picture.status === Image.Ready
        layer.enabled: true
        layer.smooth: true
        layer.textureSize: Qt.size(2 * width, 2 * height)
        fragmentShader: roundedImageFragShader
    }
}
