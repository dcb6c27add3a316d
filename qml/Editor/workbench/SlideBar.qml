// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// The slides of the slideshow in which one works, to step through, and what can be done to the one that shows.
Rectangle {
    id: root

    property var desk
    property string size: "base"

    readonly property var show: desk.slides

    implicitHeight: Math.max(5 * BGUI.Theme.unit, add.implicitHeight + BGUI.Theme.unit / 2)
    color: BGUI.Theme.surface
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    MouseArea {
        anchors.fill: parent
        onWheel: wheel.accepted = true
    }

    ListView {
        id: list
        anchors.fill: parent
        anchors.margins: BGUI.Theme.unit / 2
        anchors.rightMargin: tools.width + 2 * BGUI.Theme.unit
        clip: true
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        spacing: BGUI.Theme.unit / 2
        model: root.show.slides
        currentIndex: root.show.place
        highlightMoveDuration: 0

        delegate: SlideChip {
            height: list.height
            place: index
            slide: modelData
            size: root.size
            isCurrent: ListView.isCurrentItem
            onClicked: root.show.choose(index)
        }
    }

    BGUI.Label {
        anchors.fill: list
        visible: root.show.slides.length === 0
        muted: true
        text: qsTr("No slides yet")
        verticalAlignment: Text.AlignVCenter
    }

    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        BGUI.ActionButton {
            id: add
            objectName: "addSlide"
            size: root.size
            focusPolicy: Qt.TabFocus
            faIcon: "fa-plus"
            toolTip: qsTr("Add a slide")
            onClicked: root.show.add()
        }

        BGUI.ActionButton {
            objectName: "duplicateSlide"
            size: root.size
            focusPolicy: Qt.TabFocus
            faIcon: "fa-files-o"
            toolTip: qsTr("Duplicate the slide")
            enabled: root.show.place >= 0
            onClicked: root.show.duplicate()
        }

        BGUI.ActionButton {
            objectName: "slideEarlier"
            size: root.size
            focusPolicy: Qt.TabFocus
            faIcon: "fa-arrow-left"
            toolTip: qsTr("Earlier")
            enabled: root.show.place > 0
            onClicked: root.show.shift(-1)
        }

        BGUI.ActionButton {
            objectName: "slideLater"
            size: root.size
            focusPolicy: Qt.TabFocus
            faIcon: "fa-arrow-right"
            toolTip: qsTr("Later")
            enabled: root.show.place >= 0 && root.show.place < root.show.slides.length - 1
            onClicked: root.show.shift(1)
        }

        BGUI.ActionButton {
            objectName: "removeSlide"
            size: root.size
            focusPolicy: Qt.TabFocus
            faIcon: "fa-trash-o"
            toolTip: qsTr("Remove the slide")
            enabled: root.show.place >= 0
            onClicked: root.show.remove()
        }
    }
}
