// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A small picture with rounded corners and a caption, to click; round unless `radius` says otherwise.
PictureButton {
    id: root

    property alias source: image.source
    property real radius: pictureSize / 2

    frame: 3 * dp
    cornerRadius: radius + frame
    status: image.status
    picture: RoundedImage {
        id: image
        anchors.fill: parent
        asynchronous: true
        radius: root.radius
        // Decoded no larger than shown.
        sourceSize.width: 2 * root.pictureSize
    }
}
