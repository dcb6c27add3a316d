// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtGraphicalEffects 1.15
import "private"
import "private/limits.js" as Limits

/// A text that glows. The glow is drawn once, and again when text or size change.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "GlowText {
    text: 'Glowing text'
    color: 'white'
    glowColor: '#2f9bff'
    font.family: 'Manrope'
    font.pixelSize: 80
}"

    property alias font: label.font
    property alias color: label.color
    property alias text: label.text
    property color glowColor: "#2f9bff"
    /// How far the glow reaches, in pixels, up to 32.
    property real glowRadius: font.pixelSize / 3
    property alias horizontalAlignment: label.horizontalAlignment

    readonly property real reach: Math.max(0, Math.min(32, glowRadius))

    implicitWidth: label.implicitWidth + 2 * reach
    implicitHeight: label.implicitHeight + 2 * reach
    Component.onCompleted: editor = Qt.createComponent("GlowTextEditor.qml")

    Text {
        id: label
        x: root.reach
        y: root.reach
        width: Math.max(0, Math.min(Limits.effectEdge, root.width - 2 * x))
        height: Math.max(0, Math.min(Limits.effectEdge, root.height - 2 * y))
        visible: false
        text: "Glowing text"
        color: "white"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 80
        fontSizeMode: Text.Fit
        minimumPixelSize: 8
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }

    Glow {
        anchors.fill: label
        source: label
        color: root.glowColor
        radius: root.reach
        samples: 1 + 2 * Math.round(root.reach)
        spread: 0.35
        transparentBorder: true
        cached: true
    }

    Component {
        id: preview

        TextPreview {
            text: root.text
            textColor: root.glowColor
            family: root.font.family
        }
    }
}
