// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// A row of tabs, one chosen: `model` lists texts, or objects with "text" and "faIcon". One stop for the Tab key;
/// the arrow keys move the choice. Scrolls sideways where the tabs do not fit.
ListView {
    id: root

    property string size: "base"

    readonly property string currentText: currentIndex >= 0 && currentIndex < count ? caption(model[currentIndex]) : ""

    // The user chose that tab.
    signal activated(int index)

    function caption(entry) {
        return entry.text !== undefined ? entry.text : String(entry);
    }

    function choose(index) {
        if (index < 0 || index >= count)
            return;
        currentIndex = index;
        activated(index);
    }

    implicitWidth: contentWidth
    implicitHeight: Theme.controlHeight(size) + Theme.unit
    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentWidth > width
    clip: interactive
    keyNavigationEnabled: false
    activeFocusOnTab: true
    highlightMoveDuration: Theme.calm
    Accessible.role: Accessible.PageTabList

    Keys.onLeftPressed: choose(currentIndex - 1)
    Keys.onRightPressed: choose(currentIndex + 1)

    Rectangle {
        y: root.height - height
        z: -1
        width: root.width
        height: Math.max(1, dp)
        color: Theme.line
    }

    highlight: Item {
        z: 2

        Rectangle {
            y: parent.height - height
            width: parent.width
            height: 3 * dp
            color: Theme.accent
        }
    }

    delegate: Item {
        id: tab

        readonly property bool isCurrent: ListView.isCurrentItem

        width: label.implicitWidth + 2 * Theme.padding(root.size)
        height: root.height
        Accessible.role: Accessible.PageTab
        Accessible.name: label.text

        Rectangle {
            anchors.fill: parent
            color: Theme.strongInk
            opacity: hover.hovered && !tab.isCurrent ? 0.05 : 0
        }

        IconText {
            id: label
            anchors.centerIn: parent
            width: implicitWidth
            text: root.caption(modelData)
            faIcon: modelData.faIcon || ""
            size: root.size
            color: tab.isCurrent ? Theme.accent : Theme.ink
        }

        FocusRing {
            visible: root.activeFocus && tab.isCurrent
            gap: -2 * border.width
            cornerRadius: Theme.radius(root.size) + 4 * dp
        }

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: {
                root.forceActiveFocus(Qt.MouseFocusReason);
                root.choose(index);
            }
        }
    }
}
