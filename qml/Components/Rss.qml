// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/feed"
import "private/feed/addresses.js" as Addresses
import "private/feed/rss.js" as Feed
import "private/feed/sample.js" as Sample
import "private/presence.js" as Presence

/// The entries of a news feed (RSS or Atom), page after page. The last answer stays while there is no network; before
/// the first one the feed's sign stands there.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Rss {
    width: 640
    height: 480
    color: '#17212b'
    radius: 12
    title: ''
    imgSize: 96
    pixelSize: 26
    textColor: 'white'
    accentColor: '#f2a33a'
}"

    /// Address of the feed that is read, on the web or in the project.
    property string currentFeed: Addresses.news
    /// Edge of the pictures in pixels; 0 shows none.
    property int imgSize: 96
    /// What stands above the entries; empty for the feed's own title.
    property string title: ""
    property int pixelSize: 26
    property string fontFamily: "Open Sans"
    property color textColor: "white"
    property color accentColor: "#f2a33a"
    /// Milliseconds that a page stays.
    property int showTime: 12000
    /// Language and country of dates, as "de_DE"; empty for the system's.
    property string localeName: ""

    property bool isEdited: false
    readonly property var news: client.answer || (isEdited ? Sample.news(Date.now()) : null)
    readonly property bool onAir: visible && Presence.presenceOf(root) === Presence.shown
    readonly property real textSize: Math.max(1, Math.min(pixelSize, width / 12, height / 6))
    readonly property real margin: textSize * 0.8
    readonly property bool hasPictures: news !== null && news.entries.some(entry => entry.picture !== "")

    width: 640
    height: 480
    color: "#17212b"
    radius: 12
    clip: true
    Component.onCompleted: {
        editor = Qt.createComponent("RssEditor.qml");
        isEdited = Presence.isEdited(root);
    }

    FeedClient {
        id: client
        address: root.currentFeed
        active: root.onAir
        read: Feed.read
    }

    FeedCover {
        anchors.fill: parent
        visible: !root.news
        icon: "fa-rss"
        title: root.title || qsTr("News")
        color: root.textColor
        family: root.fontFamily
    }

    FeedHeader {
        id: header
        x: root.margin
        width: root.width - 2 * root.margin
        visible: root.news !== null
        text: root.title || (root.news ? root.news.title : "")
        pixelSize: root.textSize
        color: root.textColor
        family: root.fontFamily
        accentColor: root.accentColor
    }

    EntryPager {
        x: root.margin
        y: header.height
        width: root.width - 2 * root.margin
        height: Math.max(0, root.height - y - root.margin)
        entries: root.news ? root.news.entries : []
        rowHeight: Math.max(root.hasPictures ? root.imgSize : 0, root.textSize * 4.6)
        spacing: root.textSize * 0.6
        showTime: root.showTime
        running: root.onAir
        delegate: NewsRow {
            imgSize: root.hasPictures ? root.imgSize : 0
            pixelSize: root.textSize
            color: root.textColor
            family: root.fontFamily
            locale: Qt.locale(root.localeName)
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Rss"
        }
    }
}
