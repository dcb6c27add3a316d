// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Controls 1.4

/// A page of the shell's stack: takes the keyboard when it is shown, and goes back on Escape and the back key.
FocusScope {
    id: root

    readonly property var shell: Stack.view
    readonly property bool active: Stack.status === Stack.Active

    function back() {
        shell.pop();
    }

    function isBackKey(key) {
        return key === Qt.Key_Escape || key === Qt.Key_Back;
    }

    onActiveChanged: {
        if (active)
            forceActiveFocus();
    }

    Keys.onPressed: {
        if (!isBackKey(event.key))
            return;
        event.accepted = true;
        // A key that is held down must not run through the whole stack.
        if (!event.isAutoRepeat)
            back();
    }
}
