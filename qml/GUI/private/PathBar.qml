// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."
import "format.js" as Format

/// The way to a folder, one button a step. Scrolled to its end, where the folder itself is.
ListView {
    id: root

    property url folder
    property string size: "base"

    signal chosen(url folder)

    implicitHeight: Theme.controlHeight(size)
    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    model: Format.crumbs(folder)
    onModelChanged: Qt.callLater(positionViewAtEnd)
    onWidthChanged: Qt.callLater(positionViewAtEnd)

    delegate: Row {
        Button {
            type: "link"
            size: root.size
            text: modelData.name === "/" ? "" : modelData.name
            faIcon: modelData.name === "/" ? "fa-hdd" : ""
            Accessible.name: modelData.name
            onClicked: root.chosen(modelData.url)
        }

        FontAwesomeIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: index < root.count - 1
            faIcon: "fa-angle-right"
            size: root.size
            color: Theme.mutedInk
        }
    }
}
