// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/feed"
import "private/feed/addresses.js" as Addresses
import "private/feed/photos.js" as Photos
import "private/presence.js" as Presence

/// Photos of a public feed, one fading into the next. The last ones stay while there is no network; before the first
/// one the subject stands there.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Flickr {
    width: 640
    height: 480
    color: '#17212b'
    tags: 'nature,landscape'
    quality: 'large'
    showTitle: true
}"

    /// What the photos are about: words, separated by commas.
    property string tags: "nature,landscape"
    /// Size of the photos: "small" (240 pixels), "medium" (640) or "large" (1024).
    property string quality: "large"
    /// Whether title and author stand below the photo.
    property bool showTitle: true
    property color textColor: "white"
    /// Milliseconds that a photo stays.
    property int showTime: 8000
    /// Address of the service, with {tags} in it; or a file of the project with such an answer.
    property string service: Addresses.photos

    readonly property var photos: client.answer ? client.answer.entries : []
    readonly property bool onAir: visible && Presence.presenceOf(root) === Presence.shown
    readonly property var current: photos[fader.currentIndex]

    width: 640
    height: 480
    color: "#17212b"
    clip: true
    Component.onCompleted: editor = Qt.createComponent("FlickrEditor.qml")

    FeedClient {
        id: client
        address: Addresses.filled(root.service, { tags: root.tags })
        active: root.onAir
        period: 900000
        read: Photos.read
    }

    FeedCover {
        anchors.fill: parent
        visible: fader.currentIndex < 0
        icon: "fa-picture-o"
        title: root.tags.split(",").join(", ")
        color: root.textColor
    }

    PhotoFader {
        id: fader
        anchors.fill: parent
        sources: root.photos.map(photo => Photos.inSize(photo.picture, root.quality))
        showTime: root.showTime
        running: root.onAir
    }

    PhotoCaption {
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.showTitle && root.current !== undefined
        title: root.current ? root.current.title : ""
        author: root.current ? root.current.author : ""
        textColor: root.textColor
        pixelSize: Math.max(12, Math.min(28, root.height * 0.06, root.width * 0.05))
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Flickr"
        }
    }
}
