// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A small framed picture with a caption, to click.
PictureButton {
    id: root

    property alias source: image.source
    property alias fillMode: image.fillMode

    frame: (bs["thumbnail-padding"] + 1) * dp
    status: image.status
    picture: Image {
        id: image
        anchors.fill: parent
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        // Decoded no larger than shown.
        sourceSize.width: 2 * root.pictureSize
    }
}
