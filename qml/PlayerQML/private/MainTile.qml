// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// One large square button of the main page.
BGUI.ActionButton {
    height: 0.75 * width
    size: "xlarge"
}
