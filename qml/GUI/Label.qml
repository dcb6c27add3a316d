// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Text of the interface.
Text {
    id: root

    // "xsmall" to "xlarge", or "h1" to "h6" for headings.
    property string size: "base"
    property bool muted: false
    property bool strong: size.charAt(0) === "h"

    color: muted ? Theme.mutedInk : (strong ? Theme.strongInk : Theme.ink)
    linkColor: Theme.link
    opacity: enabled ? 1 : 0.5
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(size)
    font.weight: strong ? Font.DemiBold : Font.Normal
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
