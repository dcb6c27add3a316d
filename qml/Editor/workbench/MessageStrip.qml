// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// What the desk has to say, for as long as it says.
Item {
    id: root

    property var desk

    width: notice.width
    height: notice.height

    Rectangle {
        anchors.fill: notice
        visible: notice.visible
        radius: notice.radius
        color: BGUI.Theme.surface
    }

    BGUI.Notice {
        id: notice
        objectName: "message"
        width: Math.min(implicitWidth, root.parent.width - 4 * BGUI.Theme.unit)
        closable: type === "danger"
    }

    Timer {
        id: end
        onTriggered: notice.text = ""
    }

    Connections {
        target: root.desk

        function onTold(text, kind, duration) {
            notice.type = kind;
            notice.text = text;
            end.interval = duration;
            end.restart();
        }
    }
}
