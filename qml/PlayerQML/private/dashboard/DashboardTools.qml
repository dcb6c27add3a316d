// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// What one sees of the players, in which order and how large.
FocusScope {
    id: root

    property PlayerList players
    property alias tileSize: size.value

    function reset() {
        filter.text = "";
        tabs.choose(0);
    }

    function edit() {
        filter.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: flow.height

    Flow {
        id: flow
        width: parent.width
        spacing: 2 * BGUI.Theme.unit

        BGUI.Input {
            id: filter
            objectName: "playerFilter"
            width: Math.min(root.width, 30 * BGUI.Theme.unit)
            size: "large"
            faIcon: "fa-search"
            placeholderText: qsTr("Name or project")
            clearable: true
            onTextChanged: root.players.filter = text
        }

        BGUI.SwitchTabs {
            id: tabs
            objectName: "playerStates"
            size: "large"
            width: Math.min(root.width, implicitWidth)
            model: [qsTr("All %1").arg(root.players.namedCount), qsTr("Live %1").arg(root.players.liveCount),
                qsTr("Silent %1").arg(root.players.namedCount - root.players.liveCount)]
            currentIndex: root.players.show
            onActivated: root.players.show = index
        }

        BGUI.ComboBox {
            objectName: "playerOrder"
            width: 26 * BGUI.Theme.unit
            size: "large"
            model: [qsTr("By name"), qsTr("Longest silent first")]
            onActivated: root.players.bySilence = index === 1
        }

        Row {
            height: filter.height
            spacing: BGUI.Theme.unit

            BGUI.FontAwesomeIcon {
                anchors.verticalCenter: parent.verticalCenter
                faIcon: "fa-th"
                color: BGUI.Theme.mutedInk
            }

            BGUI.Slider {
                id: size
                objectName: "tileSize"
                anchors.verticalCenter: parent.verticalCenter
                width: 16 * BGUI.Theme.unit
                size: "large"
                from: 95 * dp
                to: 420 * dp
                value: 250 * dp
                stepSize: 10 * dp
                Accessible.name: qsTr("Size of the tiles")
            }

            BGUI.FontAwesomeIcon {
                anchors.verticalCenter: parent.verticalCenter
                faIcon: "fa-th-large"
                size: "large"
                color: BGUI.Theme.mutedInk
            }
        }
    }
}
