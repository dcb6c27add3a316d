// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Components 1.0
import "samples.js" as Samples

/// A slide with a picture of the demos that says what it is.
Slide {
    id: root

    property string text
    /// Name of the picture, of samples.js.
    property string picture

    duration: 3000

    BasicImage {
        width: 960
        height: 540
        source: Samples.picture(root.picture)
        fillMode: Image.PreserveAspectCrop
    }

    BasicRectangle {
        y: 420
        width: 960
        height: 120
        radius: 0
        color: "#a0000000"
    }

    BasicText {
        x: 48
        y: 420
        width: 864
        height: 120
        text: root.text
        color: "white"
        font.family: "Open Sans"
        font.pixelSize: 64
        verticalAlignment: Text.AlignVCenter
    }
}
