// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."
import "media.js" as Media
import "../presence.js" as Presence

/// A picture as all components draw it. It decodes beside the screen and appears when it is complete: a new source
/// replaces the old one without an empty frame between. A missing or broken picture leaves a quiet placeholder, is
/// logged once by the loader, and comes back with its file. In a slide that is absent it holds no pixels.
Item {
    id: root

    /// Address of the picture: an url, or a path in the project.
    property var source: ""
    /// How it fills the item, of Image's fill modes.
    property int fillMode: Image.PreserveAspectFit
    /// Size to decode at; empty: the picture's own, up to the limit.
    property size decodeSize: Qt.size(0, 0)
    property bool mirror: false
    property bool cache: true
    property string placeholder: "missingImage"
    readonly property int presence: Presence.presenceOf(root)
    /// Loading state, of Image's status values.
    readonly property int status: address === "" ? Image.Null : hasFailed ? Image.Error
                                                 : shownAddress === address ? Image.Ready : Image.Loading
    readonly property bool settled: status !== Image.Loading
    /// Natural size of the picture that is shown.
    readonly property real naturalWidth: front.implicitWidth
    readonly property real naturalHeight: front.implicitHeight
    /// The area that the picture covers.
    readonly property rect paintedRect: Qt.rect(front.x, front.y, front.width, front.height)

    // What is to be shown, and what is.
    readonly property string address: presence === Presence.absent ? "" : Media.address(source)
    property string shownAddress: ""
    property bool hasFailed: false
    property PictureLayer front: layerA
    readonly property PictureLayer back: front === layerA ? layerB : layerA

    function load() {
        root.hasFailed = false;
        root.back.source = "";
        if (root.address === "")
            clear();
        else if (root.address !== root.shownAddress)
            root.back.source = root.address;
    }

    function clear() {
        root.front.source = "";
        root.shownAddress = "";
    }

    function takeOver() {
        const old = root.front;
        root.front = root.back;
        root.shownAddress = root.address;
        retry.forget();
        old.source = "";
    }

    // The failed address is let go, so that the loader looks at the file again the next time.
    function giveUp() {
        root.hasFailed = true;
        root.back.source = "";
        clear();
    }

    function follow(layer) {
        if (layer !== root.back)
            return;
        if (layer.status === Image.Ready)
            takeOver();
        else if (layer.status === Image.Error)
            giveUp();
    }

    implicitWidth: naturalWidth
    implicitHeight: naturalHeight
    clip: fillMode === Image.PreserveAspectCrop
    onAddressChanged: load()

    PictureLayer {
        id: layerA
        frame: root
        visible: root.front === layerA
        onStatusChanged: root.follow(layerA)
    }

    PictureLayer {
        id: layerB
        frame: root
        visible: root.front === layerB
        onStatusChanged: root.follow(layerB)
    }

    Retry {
        id: retry
        source: root.address
        failed: root.hasFailed
        isSeen: root.visible
        onWorthTrying: root.load()
    }

    Loader {
        anchors.fill: parent
        active: root.hasFailed
        sourceComponent: Placeholder {
            icon: root.placeholder
        }
    }
}
