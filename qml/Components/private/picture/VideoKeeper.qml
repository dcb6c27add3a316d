// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQml 2.15
import QtMultimedia 5.15
import ".."
import "../presence.js" as Presence

/// Looks after its parent, a Video: makes it hold, play and rest with its slide, marks its place in the editor while it
/// cannot be played, and tries again when its file comes back.
Item {
    id: root

    property Item video
    property int presence: Presence.shown
    property bool onAir: true
    /// Whether it played when it was hidden, whoever had started it: then it goes on when it is seen again.
    property bool hasPlayed: false
    readonly property bool isMissing: video.error !== MediaPlayer.NoError || video.status === MediaPlayer.InvalidMedia
    readonly property bool isEmpty: video.source == ""
    readonly property bool isReady: video.playbackState !== MediaPlayer.StoppedState
                                    && (video.status === MediaPlayer.Buffered
                                         || video.status === MediaPlayer.EndOfMedia)
    readonly property bool settled: isEmpty || isMissing || isReady

    // Deferred to the end of the event, when all bindings have settled.
    function followLater() {
        Qt.callLater(follow);
    }

    function follow() {
        // The document may have gone meanwhile.
        if (!root || root.isEmpty || root.isMissing)
            return;
        const isPlaying = root.video.playbackState === MediaPlayer.PlayingState;
        const plays = isPlaying || root.hasPlayed;
        root.hasPlayed = plays && !root.onAir && root.presence !== Presence.absent;
        if (root.presence === Presence.absent)
            root.video.stop();
        else if (root.onAir && (root.video.autoPlay || plays))
            root.video.play();
        else
            root.video.pause();
    }

    function loadAgain() {
        again.when = true;
        again.when = false;
        followLater();
    }

    anchors.fill: parent
    onPresenceChanged: followLater()
    onOnAirChanged: followLater()
    onIsReadyChanged: {
        if (isReady)
            retry.forget();
    }
    onIsMissingChanged: {
        if (isMissing)
            console.warn(log, "cannot play", root.video.source, root.video.errorString);
    }
    Component.onCompleted: followLater()

    LoggingCategory {
        id: log
        name: "nuvex.components"
    }

    Binding {
        id: again
        target: root.video
        property: "source"
        value: ""
        when: false
        restoreMode: Binding.RestoreBindingOrValue
    }

    Connections {
        target: root.video
        function onSourceChanged() {
            root.followLater();
        }
    }

    Retry {
        id: retry
        source: root.video.source
        failed: root.isMissing
        isSeen: root.visible && root.presence !== Presence.absent
        onWorthTrying: root.loadAgain()
    }

    Placeholder {
        target: root.video
        isNeeded: root.isMissing || root.isEmpty
        icon: "missingVideo"
    }
}
