// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/feed"
import "private/feed/addresses.js" as Addresses
import "private/feed/posts.js" as Posts
import "private/feed/sample.js" as Sample
import "private/presence.js" as Presence

/// Short messages about a phrase, page after page. By default they come from a public service that needs no key; see
/// `service`. The last answer stays while there is no network; before the first one the phrase stands there.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Twitter {
    width: 560
    height: 480
    phrase: 'photography'
    limit: 12
    pixelSize: 24
    avatarSize: 64
    textColor: 'white'
    backColor: '#17212b'
}"

    /// What the messages are about.
    property string phrase: "photography"
    /// How many messages are shown at most.
    property int limit: 12
    property int pixelSize: 24
    /// Diameter of the authors' pictures in pixels; 0 shows none.
    property int avatarSize: 64
    property color textColor: "white"
    property color backColor: "#17212b"
    /// Milliseconds that a page stays.
    property int showTime: 12000
    /// Address of the service, with {phrase}, {tag} (the phrase without blanks) and {limit} in it; or a file of the
    /// project. private/feed/posts.js lists the shapes of answers that are understood.
    property string service: Addresses.posts
    /// Language and country of dates, as "de_DE"; empty for the system's.
    property string localeName: ""

    property bool isEdited: false
    readonly property var posts: client.answer || (isEdited ? Sample.posts(Date.now()) : null)
    readonly property bool onAir: visible && Presence.presenceOf(root) === Presence.shown
    readonly property real textSize: Math.max(1, Math.min(pixelSize, width / 12, height / 5))

    width: 560
    height: 480
    Component.onCompleted: {
        editor = Qt.createComponent("TwitterEditor.qml");
        isEdited = Presence.isEdited(root);
    }

    FeedClient {
        id: client
        address: Addresses.filled(root.service, { phrase: root.phrase, tag: Posts.tagOf(root.phrase),
                                                  limit: Math.max(1, root.limit) })
        active: root.onAir
        period: 300000
        read: Posts.read
    }

    Rectangle {
        anchors.fill: parent
        visible: !root.posts
        radius: 12
        color: root.backColor

        FeedCover {
            anchors.fill: parent
            icon: "fa-comments-o"
            title: root.phrase
            color: root.textColor
        }
    }

    EntryPager {
        anchors.fill: parent
        entries: root.posts ? root.posts.entries.slice(0, Math.max(1, root.limit)) : []
        rowHeight: Math.max(root.avatarSize + 1.6 * root.textSize, root.textSize * 6.4)
        spacing: root.textSize * 0.5
        showTime: root.showTime
        running: root.onAir
        delegate: PostCard {
            color: root.backColor
            textColor: root.textColor
            pixelSize: root.textSize
            avatarSize: root.avatarSize
            locale: Qt.locale(root.localeName)
        }
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Twitter"
        }
    }
}
