// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// QML source with its tools and a marked line.
Card {
    id: root

    title: qsTr("Source")

    TextToolBar {
        width: parent.width
        target: source
    }

    QMLTextArea {
        id: source
        width: parent.width
        height: 26 * Theme.unit
        errorLine: 8
        text: "import QtQuick 2.15\nimport Nuvex.Components 1.0\n\n// The shop window\nRectangle {\n    width: 1920\n"
              + "    height: 1080\n    color: \"#1e252e\n\n    BasicText {\n        anchors.centerIn: parent\n"
              + "        text: \"Open until \" + closing(8)\n    }\n}\n"
    }
}
