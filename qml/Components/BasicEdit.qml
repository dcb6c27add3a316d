// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// A text input for screens that are touched or have a keyboard.
BGUI.Input {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicEdit {
    width: 360
    height: 56
    placeholderText: 'Write here'
    size: 'xlarge'
}"

    width: 360
    height: 56
    placeholderText: "Write here"
    size: "xlarge"
    // There is no panel for it yet: editor = Qt.createComponent("BasicEditEditor.qml")

    Component {
        id: preview

        TextPreview {
            text: root.text === "" ? root.placeholderText : root.text
        }
    }
}
