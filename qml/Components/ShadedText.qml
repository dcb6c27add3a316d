// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtGraphicalEffects 1.15
import "private"
import "private/limits.js" as Limits

/// A text with a soft shadow, for use on pictures. Both are open to change: `textItem` is the text, `shadowItem` the
/// shadow (a DropShadow: color, radius, horizontalOffset, verticalOffset).
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "ShadedText {
    textItem.text: 'Text with shadow'
    textItem.color: 'white'
    textItem.font.family: 'Manrope'
    textItem.font.pixelSize: 72
    shadowItem.color: '#c0000000'
    shadowItem.radius: 12
}"

    property alias textItem: label
    property alias shadowItem: shadow

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    Component.onCompleted: editor = Qt.createComponent("ShadedTextEditor.qml")

    Text {
        id: label
        width: Math.max(0, Math.min(Limits.effectEdge, root.width))
        height: Math.max(0, Math.min(Limits.effectEdge, root.height))
        visible: false
        text: "Text with shadow"
        color: "white"
        font.family: "Manrope"
        font.bold: true
        font.pixelSize: 72
        fontSizeMode: Text.Fit
        minimumPixelSize: 8
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }

    DropShadow {
        id: shadow
        anchors.fill: label
        source: label
        color: "#c0000000"
        radius: 12
        samples: 1 + 2 * Math.round(Math.max(0, Math.min(24, radius)))
        horizontalOffset: 2
        verticalOffset: 4
        transparentBorder: true
        cached: true
    }

    Component {
        id: preview

        TextPreview {
            text: root.textItem.text
            textColor: root.textItem.color
            family: root.textItem.font.family
        }
    }
}
