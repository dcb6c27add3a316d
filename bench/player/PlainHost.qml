// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import PlainHost 1.0

// A project's document in a window of the screen's size.
Loader {
    width: 1920
    height: 1080
    source: "@PROJECT@/main.qml"
}
