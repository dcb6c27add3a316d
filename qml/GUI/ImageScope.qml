// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A round or elliptic window onto a part of a picture, like a magnifier's glass. The picture is laid out at
/// `imageWidth` by `imageHeight`; the window shows it from (`scopeX`, `scopeY`) on, nothing outside it.
Item {
    id: root

    property alias source: picture.source
    property alias status: picture.status
    property alias sourceSize: picture.sourceSize
    property real imageWidth: picture.implicitWidth
    property real imageHeight: picture.implicitHeight
    property real scopeX: 0
    property real scopeY: 0
    property real radius: Math.min(width, height) / 2

    implicitWidth: 16 * Theme.unit
    implicitHeight: 16 * Theme.unit
    Accessible.role: Accessible.Graphic

    Image {
        id: picture
        visible: false
        smooth: true
        mipmap: true
    }

    ShaderEffect {
        property var _image: picture
        property real _w: root.width / Math.max(1, root.imageWidth)
        property real _h: root.height / Math.max(1, root.imageHeight)
        property real _cX: root.scopeX / Math.max(1, root.imageWidth)
        property real _cY: root.scopeY / Math.max(1, root.imageHeight)
        property real _rX: root.radius / Math.max(1, root.width)
        property real _rY: root.radius / Math.max(1, root.height)

        anchors.fill: parent
        visible: picture.status === Image.Ready
        layer.enabled: true
        layer.smooth: true
        layer.textureSize: Qt.size(2 * width, 2 * height)
        fragmentShader: imageScopeFragShader
    }
}
