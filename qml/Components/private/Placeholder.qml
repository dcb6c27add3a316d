// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// What stands in the place of a picture or video that cannot be shown: a quiet mark, never a message.
Rectangle {
    id: root

    /// Name of the drawing below "icons", without suffix.
    property string icon: "missingImage"

    color: "#40202a33"
    clip: true

    Image {
        anchors.centerIn: parent
        width: Math.min(root.width * 0.5, 160)
        height: Math.min(root.height * 0.5, 160)
        fillMode: Image.PreserveAspectFit
        mipmap: true
        opacity: 0.6
        source: "qrc:///Nuvex/Components/icons/" + root.icon + ".png"
    }
}
