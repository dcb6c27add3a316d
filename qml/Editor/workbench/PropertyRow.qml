// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "../desk/expressions.js" as Expressions

/// One property of the list: its name, and its value as source text. Enter commits it; leaving it does so too. A sign
/// marks one that the document works out.
Row {
    id: root

    property string name
    property string value
    property bool readOnly: false
    /// Takes the new text; false when it cannot be used.
    property var commit: text => true

    readonly property bool isBound: !readOnly && value !== "" && !Expressions.isHandler(name)
                                    && !Expressions.isConstant(value)
    readonly property bool isLong: value.indexOf("\n") >= 0

    spacing: BGUI.Theme.unit / 2

    BGUI.Label {
        width: 0.4 * parent.width
        height: field.height
        text: root.name
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
        verticalAlignment: Text.AlignVCenter
    }

    BGUI.Input {
        id: field
        objectName: "value of " + root.name
        width: parent.width - 0.4 * parent.width - parent.spacing
        text: root.isLong ? root.value.split("\n")[0] + " …" : root.value
        faIcon: root.isBound ? "fa-link" : ""
        readOnly: root.readOnly || root.isLong
        onEditingFinished: {
            if (!readOnly && !root.commit(text))
                text = Qt.binding(() => root.isLong ? root.value.split("\n")[0] + " …" : root.value);
        }
    }
}
