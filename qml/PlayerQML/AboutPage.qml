// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// Who made the program, which version it is and which computer it runs on.
FormPage {
    id: root

    readonly property string webSite: "https://nuvex.example/"

    function credit() {
        return qsTr("Nuvex is made by %1.").arg("<a href=\"" + webSite + "\">" + qsTr("the Nuvex developers") + "</a>")
               + "<br>App version: " + CAPI.getSSetting("version")
               + "<br>Host: " + CAPI.hostName();
    }

    function parts() {
        return qsTr("Built with %1, under the LGPL version 3. "
                    + "Fonts are under the Open Font License and the Apache License.")
            .arg("<a href=\"https://www.qt.io/\">Qt</a>");
    }

    objectName: "AboutPage"
    title: "About"

    Sheet {
        spacing: 3 * BGUI.Theme.unit

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 14 * BGUI.Theme.unit
            height: width
            source: "qrc:/Nuvex/images/logo.png"
            sourceSize: Qt.size(2 * width, 2 * height)
        }

        BGUI.Label {
            objectName: "credit"
            width: parent.width
            size: "large"
            text: root.credit()
            textFormat: Text.StyledText
            horizontalAlignment: Text.AlignHCenter
            lineHeight: 1.5
            onLinkActivated: Qt.openUrlExternally(link)
        }

        BGUI.Label {
            objectName: "parts"
            width: parent.width
            text: root.parts()
            textFormat: Text.StyledText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            onLinkActivated: Qt.openUrlExternally(link)
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 2 * BGUI.Theme.unit

            BGUI.Button {
                focus: true
                faIcon: "fa-external-link"
                text: qsTr("Web Site")
                onClicked: Qt.openUrlExternally(root.webSite)
            }

            BGUI.Button {
                faIcon: "fa-question-circle"
                text: qsTr("Help")
                onClicked: root.shell.open("HelpPage")
            }
        }
    }
}
