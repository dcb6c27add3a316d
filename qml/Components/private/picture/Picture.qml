// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Native 1.1
import ".."
import "../limits.js" as Limits
import "../presence.js" as Presence

/// A picture as all components draw it: an Image that decodes beside the screen, up to a limit, and is shown when it is
/// complete. A new one replaces the old one without an empty frame between. A missing or broken one is logged once by
/// the loader and comes back with its file; until then its place is empty, and marked in the editor alone. In a slide
/// that is absent it holds no pixels.
BoundedImage {
    id: root

    /// Address of the picture, as media.js makes it; "" for none.
    property string address: ""
    readonly property bool settled: status !== Image.Loading
    // Between two attempts: the loader looks at the file again when it has let it go.
    property bool isLetGo: false

    function loadAgain() {
        isLetGo = true;
        isLetGo = false;
    }

    location: isLetGo || Presence.presenceOf(root) === Presence.absent ? "" : address
    edge: Limits.pictureEdge
    asynchronous: true
    autoTransform: true
    mipmap: true
    onStatusChanged: {
        if (status === Image.Ready)
            retry.forget();
    }
    standIn: Image {
        parent: root
        anchors.fill: parent
        fillMode: root.fillMode
        horizontalAlignment: root.horizontalAlignment
        verticalAlignment: root.verticalAlignment
        mirror: root.mirror
        smooth: root.smooth
        mipmap: root.mipmap
    }

    Retry {
        id: retry
        source: root.address
        failed: root.status === Image.Error
        isSeen: root.visible
        onWorthTrying: root.loadAgain()
    }

    Placeholder {
        target: root
        isNeeded: root.status === Image.Error
        icon: "missingImage"
    }
}
