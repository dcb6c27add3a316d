// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../picture"
import "../picture/media.js" as Media

/// A small picture of an entry with rounded corners. Until it is there, and where there is none, its place holds the
/// first letter of `label` on a colour of its own.
Rectangle {
    id: root

    property string source
    property string label

    // A hue that stays the same for the same label.
    readonly property real hue: parseInt(Qt.md5(label).slice(0, 2), 16) / 256

    color: Qt.hsla(hue, 0.35, 0.38, 1)

    Text {
        anchors.centerIn: parent
        text: (root.label.match(/[^\s"'“„«#@]/) || [""])[0].toUpperCase()
        textFormat: Text.PlainText
        color: "white"
        font.family: "Open Sans"
        font.pixelSize: Math.max(1, root.height * 0.5)
    }

    Picture {
        anchors.fill: parent
        visible: status === Image.Ready
        address: Media.address(root.source)
        fillMode: Image.PreserveAspectCrop
        sourceSize.width: Math.ceil(root.width) * 2
        layer.enabled: visible && root.radius > 0 && width > 0 && height > 0
        layer.smooth: true
        layer.samplerName: "_image"
        layer.effect: ShaderEffect {
            property real _rX: Math.min(0.5, root.radius / root.width)
            property real _rY: Math.min(0.5, root.radius / root.height)
            fragmentShader: roundedImageFragShader
        }
    }
}
