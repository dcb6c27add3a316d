// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15
import "private"
import "private/picture"
import "private/presence.js" as Presence

/// A video. It plays while it is seen: in a slide from its first frame on when the slide's turn comes, elsewhere from
/// the start. Between turns its decoder is free. Loops and changes of source show no empty frame.
Video {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicVideo {
    width: 480
    height: 270
    source: ''
}"

    readonly property int presence: Presence.presenceOf(root)
    /// Whether the video has its turn and can be seen.
    readonly property bool onAir: visible && presence === Presence.shown
    /// Whether its first frame is there, or will never come.
    readonly property bool settled: keeper.settled

    width: 480
    height: 270
    autoLoad: false
    autoPlay: presence === Presence.shown
    loops: MediaPlayer.Infinite
    flushMode: VideoOutput.LastFrame
    fillMode: VideoOutput.PreserveAspectFit
    Component.onCompleted: editor = Qt.createComponent("BasicVideoEditor.qml")

    VideoKeeper {
        id: keeper
        video: root
        presence: root.presence
        onAir: root.onAir
    }

    Component {
        id: preview

        PreviewTile {
            icon: "BasicVideo"
        }
    }
}
