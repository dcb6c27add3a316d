// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Zooms and pans with two fingers.
PinchArea {
    id: root

    property Viewport viewport

    onPinchUpdated: {
        viewport.zoomTo(viewport.zoom * pinch.scale / pinch.previousScale, pinch.center.x, pinch.center.y);
        viewport.pan(pinch.center.x - pinch.previousCenter.x, pinch.center.y - pinch.previousCenter.y);
    }
}
