// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media
import "private/presence.js" as Presence

/// A video without its green background: what lies beneath shows through. The key runs on the graphics card. It plays
/// while it is seen, and in a slide when its turn comes.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "ChromaVideo {
    width: 480
    height: 270
    source: ''
    th: 3.5
    a2: 1.2
    amt: 0.03
}"

    property url source: ""
    property bool autoPlay: true
    /// How sharply green turns transparent, and how much greener than red and blue it has to be for that.
    property real th: 3.5
    property real a2: 1.2
    /// Amount of green spill above which the rest turns transparent too.
    property real amt: 0.03
    /// Colour of the light that takes the place of the spill, and what is added to it.
    property color bg: "white"
    property real plus: 0
    property alias muted: video.muted
    /// From 0 to 1.
    property real volume: 1
    readonly property alias playbackState: video.playbackState
    readonly property alias position: video.position
    readonly property bool settled: keeper.settled

    function play() {
        video.play();
    }
    function pause() {
        video.pause();
    }
    function stop() {
        video.stop();
    }
    function seek(pos) {
        video.seek(pos);
    }

    width: 480
    height: 270
    Component.onCompleted: editor = Qt.createComponent("ChromaVideoEditor.qml")

    Video {
        id: video
        width: root.width
        height: root.height
        visible: false
        source: Media.address(root.source)
        autoLoad: false
        volume: root.volume >= 0 ? Math.min(1, root.volume) : 0
        autoPlay: root.autoPlay && keeper.presence === Presence.shown
        loops: MediaPlayer.Infinite
        flushMode: VideoOutput.LastFrame
        fillMode: VideoOutput.Stretch
    }

    ShaderEffectSource {
        id: picture
        width: root.width
        height: root.height
        visible: false
        sourceItem: video
        // The frame fills the copy, so its edges need no second sample; a small video is enlarged only as it is keyed.
        textureSize: Media.copySize(video.metaData.resolution, root)
    }

    ChromaKey {
        anchors.fill: parent
        visible: video.hasVideo && !keeper.isMissing
        source: picture
        th: root.th
        a2: root.a2
        amt: root.amt
        bg: root.bg
        plus: root.plus
    }

    VideoKeeper {
        id: keeper
        video: video
        presence: Presence.presenceOf(root)
        onAir: root.visible && presence === Presence.shown
    }

    Component {
        id: preview

        PreviewTile {
            icon: "ChromaVideo"
        }
    }
}
