// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A text. With `wordWrap` it breaks its lines at its width.
Text {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicText {
    text: 'Your text here'
    color: '#2878bd'
    font.family: 'Open Sans'
    font.pixelSize: 48
    wordWrap: true
}"

    /// Whether lines break between words at the item's width.
    property bool wordWrap: true

    text: "Your text here"
    color: "#2878bd"
    font.family: "Open Sans"
    font.pixelSize: 48
    wrapMode: wordWrap ? Text.WordWrap : Text.NoWrap
    Component.onCompleted: editor = Qt.createComponent("BasicTextEditor.qml")

    Component {
        id: preview

        TextPreview {
            text: root.text
            textFormat: root.textFormat
            family: root.font.family
        }
    }
}
