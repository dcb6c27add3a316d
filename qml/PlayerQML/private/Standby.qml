// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// What the wall shows while no project does: which player this is, what it should show and what is in the way.
Rectangle {
    id: root

    property string project
    property string documentName
    property url documentUrl
    property bool failed: false
    // Why it is not even tried; empty when it is.
    property string obstacle
    property string networkAddress

    readonly property string playerName: CAPI.getSSetting("playerUID").split("_")[0]

    // The engine's own words, without the way to the project's folder.
    function loadErrors() {
        const component = Qt.createComponent(documentUrl);
        const text = component.errorString();
        component.destroy();
        const folder = documentUrl.toString().replace(/[^\/]*$/, "");
        return text.split(folder).join("").split("\n").filter(line => line !== "").slice(0, 4).join("\n");
    }

    function reason() {
        if (project === "")
            return qsTr("No project is open.");
        if (obstacle !== "")
            return obstacle;
        if (failed)
            return loadErrors() || qsTr("%1 could not be loaded. The log says why.").arg(documentName);
        if (!CAPI.fileExist(documentUrl))
            return qsTr("The project has no file %1.").arg(documentName);
        return "";
    }

    color: "#161b36"

    Image {
        anchors.fill: parent
        source: "qrc:/Nuvex/images/standby.png"
        fillMode: Image.PreserveAspectCrop
        horizontalAlignment: root.width < root.height ? Image.AlignHCenter : Image.AlignLeft
    }

    Column {
        id: facts

        readonly property real step: Math.min(root.width, root.height) / 54

        anchors.left: parent.left
        anchors.leftMargin: 4 * step
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(parent.width - 8 * step, 48 * step)
        spacing: step

        StandbyText {
            text: root.playerName
            font.pixelSize: 4 * facts.step
            font.weight: Font.DemiBold
        }

        StandbyText {
            visible: root.project !== ""
            text: qsTr("Project: %1").arg(root.project)
            font.pixelSize: 2 * facts.step
        }

        StandbyText {
            text: qsTr("Host: %1").arg([CAPI.hostName(), root.networkAddress].filter(part => part).join("  ·  "))
            opacity: 0.75
            font.pixelSize: 1.5 * facts.step
        }

        StandbyText {
            objectName: "standbyReason"
            topPadding: facts.step
            visible: text !== ""
            text: root.reason()
            color: "#ffd37a"
            font.pixelSize: 1.5 * facts.step
        }
    }
}
