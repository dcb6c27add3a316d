// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "media.js" as Media

/// One of the two layers of a Picture. It is stretched to its place instead of using the aspect modes: with those the
/// loader would enlarge a small picture up to the decoding limit.
Image {
    id: root

    /// The Picture.
    property Item frame
    readonly property rect place: Media.placeOf(frame.fillMode, implicitWidth, implicitHeight,
                                               frame.width, frame.height)

    x: place.x
    y: place.y
    width: place.width
    height: place.height
    fillMode: frame.fillMode <= Image.PreserveAspectCrop ? Image.Stretch : frame.fillMode
    sourceSize: Media.decodedSize(source, frame.decodeSize, frame.width, frame.height)
    mirror: frame.mirror
    cache: frame.cache
    asynchronous: true
    autoTransform: true
    mipmap: true
}
