// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A duration: milliseconds in the document, seconds on the panel.
NumberRow {
    unit: 1000
    decimals: 1
    to: 86400
    step: 0.5
    suffix: " s"
}
