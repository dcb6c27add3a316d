// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A text in the demos' face for headlines.
Text {
    lineHeight: 0.86
    font.family: "Caladea"
    font.pixelSize: 144
}
