// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The keys of the desktop editor. While a text has the keyboard they are the text's, but for saving and playing.
Item {
    id: root

    property var desk
    property bool isActive: false
    property bool isWriting: false

    signal playWanted()
    signal fitted()
    signal zoomedTo(real scale)
    signal sourceToggled()
    signal keysWanted()
    signal undone()

    readonly property bool isFree: isActive && !isWriting

    Shortcut {
        sequence: "Ctrl+S"
        enabled: root.isActive
        onActivated: root.desk.save()
    }

    Shortcut {
        sequence: "F5"
        enabled: root.isActive
        onActivated: root.playWanted()
    }

    Shortcut {
        sequences: ["Ctrl+Z", "Ctrl+Y", "Ctrl+Shift+Z"]
        enabled: root.isFree
        onActivated: root.undone()
    }

    Shortcut {
        sequence: "Ctrl+C"
        enabled: root.isFree
        onActivated: root.desk.insertion.copy()
    }

    Shortcut {
        sequence: "Ctrl+X"
        enabled: root.isFree
        onActivated: root.desk.insertion.cut()
    }

    Shortcut {
        sequence: "Ctrl+V"
        enabled: root.isFree
        onActivated: root.desk.insertion.paste()
    }

    Shortcut {
        sequence: "Ctrl+D"
        enabled: root.isFree
        onActivated: root.desk.insertion.duplicate()
    }

    Shortcut {
        sequence: "Ctrl+A"
        enabled: root.isFree
        onActivated: root.desk.selection.selectAll()
    }

    Shortcut {
        sequence: "Del"
        enabled: root.isFree
        onActivated: root.desk.insertion.remove()
    }

    Shortcut {
        sequence: "Ctrl+Up"
        enabled: root.isFree
        onActivated: root.desk.arrangement.order("forward")
    }

    Shortcut {
        sequence: "Ctrl+Down"
        enabled: root.isFree
        onActivated: root.desk.arrangement.order("backward")
    }

    Shortcut {
        sequence: "Ctrl+Shift+Up"
        enabled: root.isFree
        onActivated: root.desk.arrangement.order("front")
    }

    Shortcut {
        sequence: "Ctrl+Shift+Down"
        enabled: root.isFree
        onActivated: root.desk.arrangement.order("back")
    }

    Shortcut {
        sequence: "Ctrl+0"
        enabled: root.isFree
        onActivated: root.fitted()
    }

    Shortcut {
        sequence: "Ctrl+1"
        enabled: root.isFree
        onActivated: root.zoomedTo(1)
    }

    Shortcut {
        sequence: "F4"
        enabled: root.isFree
        onActivated: root.sourceToggled()
    }

    Shortcut {
        sequence: "?"
        enabled: root.isFree
        onActivated: root.keysWanted()
    }
}
