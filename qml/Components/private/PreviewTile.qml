// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The small rendering of a component in the item lists of the editor: its icon, or what is put inside.
Rectangle {
    id: root

    /// Name of the icon below "icons", without suffix; "" when children show the item itself.
    property string icon: ""

    implicitWidth: 64
    implicitHeight: 48
    radius: 4
    color: "#26323f"
    clip: true

    Image {
        anchors.fill: parent
        anchors.margins: 4
        visible: root.icon !== ""
        fillMode: Image.PreserveAspectFit
        mipmap: true
        source: root.icon === "" ? "" : "qrc:///Nuvex/Components/icons/" + root.icon + ".png"
    }
}
