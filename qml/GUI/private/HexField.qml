// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// A colour's name in hexadecimal, as "#rgb", "#rrggbb" or "#aarrggbb". What cannot be a colour gives way to the one
/// there is.
Input {
    id: root

    property color color

    signal picked(color color)

    function take() {
        const chosen = text;
        const isNew = acceptableInput && chosen !== String(color);
        text = Qt.binding(() => String(root.color));
        if (isNew)
            picked(chosen);
    }

    text: String(color)
    validator: RegExpValidator { regExp: /#([0-9a-fA-F]{3}|[0-9a-fA-F]{6}|[0-9a-fA-F]{8})/ }
    onEditingFinished: take()
    onActiveFocusChanged: {
        if (!activeFocus)
            take();
    }
    Accessible.name: qsTr("Colour in hexadecimal")
}
