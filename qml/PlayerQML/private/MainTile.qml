// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One large button of the main page.
BGUI.ActionButton {
    objectName: "mainTile"
    size: "xlarge"
    growth: Math.max(1, Math.min(width / 0.75, height) / (20 * BGUI.Theme.unit))
}
