// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// A button for screens that are touched.
BGUI.Button {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicButton {
    width: 200
    height: 64
    text: 'Button'
    type: 'primary'
    size: 'xlarge'
}"

    width: 200
    height: 64
    text: "Button"
    type: "primary"
    size: "xlarge"
    Component.onCompleted: editor = Qt.createComponent("BasicButtonEditor.qml")

    Component {
        id: preview

        TextPreview {
            text: root.text
        }
    }
}
