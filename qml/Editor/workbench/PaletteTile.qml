// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// One component of the palette: its picture and name.
DragTile {
    id: root

    property string type

    objectName: "palette " + type
    cargo: ({ component: type })
    picture: Image {
        source: "qrc:///Nuvex/Components/icons/" + root.type + ".png"
        sourceSize.width: 2 * width
        fillMode: Image.PreserveAspectFit
        mipmap: true
    }
}
