// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "presence.js" as Presence

/// In the editor, what stands in the place of a picture or video that cannot be shown: a quiet mark, never a message.
/// On a screen the place stays empty.
Loader {
    id: root

    /// The item that would show it, and whether that cannot.
    property Item target: parent
    property bool isNeeded: false
    /// Name of the drawing below "icons", without suffix.
    property string icon: "missingImage"
    property bool isEdited: false

    anchors.fill: parent
    active: isNeeded && isEdited
    sourceComponent: Rectangle {
        color: "#40202a33"
        clip: true

        Image {
            anchors.centerIn: parent
            width: Math.min(parent.width * 0.5, 160)
            height: Math.min(parent.height * 0.5, 160)
            fillMode: Image.PreserveAspectFit
            mipmap: true
            opacity: 0.6
            source: "qrc:///Nuvex/Components/icons/" + root.icon + ".png"
        }
    }
    // Numbers are given once, before completion.
    Component.onCompleted: isEdited = Presence.isInEditor(target)
}
