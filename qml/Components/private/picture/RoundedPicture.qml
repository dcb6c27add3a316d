// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "media.js" as Media
import "../limits.js" as Limits

/// A Picture with rounded corners, which crops to fill its place.
Item {
    id: root

    property var source: ""
    property alias status: picture.status
    /// Corner radius in pixels; half the size and more makes a circle or a stadium.
    property real radius: 12

    layer.enabled: width > 0 && height > 0 && Math.max(width, height) <= Limits.pictureEdge
    layer.smooth: true
    layer.effect: ShaderEffect {
        readonly property size extent: Qt.size(root.width, root.height)
        readonly property real radius: Math.max(0, Math.min(root.radius, root.width / 2, root.height / 2))

        fragmentShader: "
            varying highp vec2 qt_TexCoord0;
            uniform lowp sampler2D source;
            uniform lowp float qt_Opacity;
            uniform highp vec2 extent;
            uniform highp float radius;
            void main() {
                highp vec2 fromCorner = abs(qt_TexCoord0 - 0.5) * extent - extent * 0.5 + radius;
                highp float outside = length(max(fromCorner, 0.0)) - radius;
                gl_FragColor = texture2D(source, qt_TexCoord0) * clamp(0.5 - outside, 0.0, 1.0) * qt_Opacity;
            }"
    }

    Picture {
        id: picture
        anchors.fill: parent
        address: Media.address(root.source)
        fillMode: Image.PreserveAspectCrop
    }
}
