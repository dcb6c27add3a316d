// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "colors.js" as Colors
import "limits.js" as Limits
import "values.js" as Values

/// A colour. The item follows while it is chosen; closing the picker finishes. The document's colours are offered.
PanelRow {
    id: root

    readonly property alias button: button

    onValueChanged: {
        if (value !== undefined)
            button.color = value;
    }

    BGUI.ColorButton {
        id: button
        width: parent.width
        size: root.size
        Accessible.name: root.label
        onPicked: root.change(Values.quoted(color))
    }

    Connections {
        target: button.popup
        function onAboutToShow() {
            button.used = Colors.used(CAPI.editedSourceCode(), Limits.usedColors);
        }
        function onClosed() {
            root.finish();
        }
    }
}
