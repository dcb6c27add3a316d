// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/picture/media.js" as Media
import "private/presence.js" as Presence

/// A web page. The browser is loaded when the first page is shown, and a page goes when its slide is absent. A page
/// that cannot be loaded leaves a quiet placeholder and is tried again.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicWebView {
    width: 960
    height: 540
    url: ''
    zoomFactor: 1
}"

    property url url: ""
    property real zoomFactor: 1
    /// Milliseconds after which the page is loaded again; 0 for never.
    property int reloadTime: 0

    readonly property int presence: Presence.presenceOf(root)
    readonly property bool isWanted: url != "" && visible && presence !== Presence.absent
    readonly property bool isLoaded: page.item !== null && page.item.isLoaded
    readonly property bool hasFailed: page.status === Loader.Error || (page.item !== null && page.item.hasFailed)
    readonly property bool settled: !isWanted || isLoaded || hasFailed

    /// Loads the page again.
    function reload() {
        if (page.item)
            page.item.load();
    }

    width: 960
    height: 540
    Component.onCompleted: editor = Qt.createComponent("BasicWebViewEditor.qml")

    Loader {
        id: page
        anchors.fill: parent
        active: root.isWanted
        source: "private/picture/WebPage.qml"
        onLoaded: {
            item.address = Qt.binding(function() { return Media.address(root.url); });
            item.zoomFactor = Qt.binding(function() { return Math.max(0.25, Math.min(5, root.zoomFactor)); });
        }
    }

    Timer {
        interval: Math.max(1000, root.reloadTime)
        repeat: true
        running: root.isLoaded && root.reloadTime > 0 && root.presence === Presence.shown
        onTriggered: root.reload()
    }

    Placeholder {
        target: root
        isNeeded: !root.isLoaded
        icon: "missingPage"
    }

    Component {
        id: preview

        PreviewTile {
            icon: "BasicWebView"
        }
    }
}
