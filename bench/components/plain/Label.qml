// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A text in the demos' common face.
Text {
    font.family: "Manrope"
    font.pixelSize: 28
}
