// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A piece of the document's source, to be changed.
BGUI.QMLTextArea {
    id: root

    property string shown
    readonly property bool isChanged: text !== shown

    function show(piece) {
        text = piece;
        shown = text;
    }

    function code() {
        return exactText();
    }

    objectName: "source"
    size: "large"
}
