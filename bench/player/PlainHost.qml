// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// Lets qmlscene and qml show a project's document: the names that Nuvex publishes to every document are
// properties of this root, which the documents below it see.
Item {
    id: host

    property real dp: 1
    property var bs: ({})
    property var faIcons: ({})
    property QtObject CAPI: QtObject {
        property bool iConnected: true

        function resolveUrl(path) {
            return project + "/" + path;
        }
        function getBaseFolder() {
            return project;
        }
        function fileExist(path) {
            return true;
        }
    }
    readonly property string project: Qt.application.arguments[Qt.application.arguments.length - 1]

    width: 1920
    height: 1080

    Loader {
        anchors.fill: parent
        source: host.project + "/main.qml"
    }
}
