// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Nuvex.Editor.workbench 1.0
import Nuvex.GUI 1.0 as BGUI

/// What can be added to a document by touch; a tap adds it and closes the sheet.
BGUI.ModalPopup {
    id: root

    /// A component of that type was chosen.
    signal chosen(string type)

    objectName: "parts"
    width: Math.min(parent ? parent.width - 4 * BGUI.Theme.unit : 0, 58 * BGUI.Theme.unit)
    height: Math.min(parent ? parent.height - 4 * BGUI.Theme.unit : 0, 100 * BGUI.Theme.unit)
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    padding: BGUI.Theme.unit

    background: Rectangle {
        radius: BGUI.Theme.radius("xlarge")
        color: BGUI.Theme.surface
    }

    contentItem: PalettePane {
        onChosen: {
            root.close();
            root.chosen(type);
        }
    }
}
