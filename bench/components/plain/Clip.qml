// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtMultimedia 5.15

/// A video that plays in a loop while it is seen.
Video {
    fillMode: VideoOutput.PreserveAspectCrop
    flushMode: VideoOutput.LastFrame
    loops: MediaPlayer.Infinite
    autoPlay: visible
    onVisibleChanged: visible ? play() : pause()
}
