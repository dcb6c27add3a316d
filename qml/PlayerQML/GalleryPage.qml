// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Gallery 1.0
import "private"

/// Every widget and component at a glance.
FormPage {
    objectName: "GalleryPage"
    title: qsTr("Gallery")

    Gallery {
        anchors.fill: parent
        focus: true
    }
}
