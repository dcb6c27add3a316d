// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "../fonts.js" as Fonts

/// The title of a CartaMenu, which stays in place while pages turn below it.
Rectangle {
    id: root

    /// The CartaMenu.
    property Item menu

    z: 2
    width: Math.max(0, menu.width - menu.leftMargin - menu.rightMargin)
    height: (menu.title === "" ? 24 : 40) * menu.unit + (menu.title === "" ? 0 : label.height)
    color: menu.backColor

    MenuName {
        id: label
        y: 22 * root.menu.unit
        line: parent.width
        // A second line only in the smallest letters.
        room: 1.7 * face.pixelSize
        text: root.menu.title
        color: root.menu.titleColor
        face: Fonts.sized(root.menu.titleFont, root.menu.titleFont.pixelSize * root.menu.unit)
    }
}
