// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"

/// One choice of a list that drops down. Up and Down change it, Space or Enter opens the list.
T.ComboBox {
    id: root

    property string size: "base"
    property string placeholderText
    // Role of the face in which a choice is written in the list; without one it is the program's.
    property string familyRole

    // On release, as the template closes an open list on release.
    function openByKey(event) {
        const isEnter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isEnter && !popup.visible;
        if (event.accepted)
            popup.open();
    }

    implicitWidth: 24 * Theme.unit
    implicitHeight: Theme.controlHeight(size)
    leftPadding: Theme.padding(size)
    rightPadding: indicator.width + Theme.padding(size) * 1.5
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(size)

    Keys.onReleased: openByKey(event)

    indicator: FontAwesomeIcon {
        x: root.width - width - Theme.padding(root.size)
        y: (root.height - height) / 2
        faIcon: "fa-caret-down"
        size: root.size
        color: bs["dropdown-caret-color"]
    }

    contentItem: Text {
        text: root.displayText || root.placeholderText
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        color: root.displayText === "" ? bs["input-color-placeholder"] : bs["input-color"]
        font: root.font
    }

    background: FieldFrame {
        control: root
        isFocused: root.activeFocus || root.popup.visible
    }

    delegate: ListRow {
        width: ListView.view.width
        size: root.size
        text: root.textRole === "" ? modelData : (Array.isArray(root.model) ? modelData[root.textRole]
                                                                            : model[root.textRole])
        family: root.familyRole === "" ? Theme.fontFamily : modelData[root.familyRole]
        highlighted: root.highlightedIndex === index
    }

    popup: T.Popup {
        y: root.height + 2 * dp
        width: root.width
        height: Math.min(contentItem.implicitHeight + 2 * padding, 40 * Theme.unit)
        margins: Theme.unit
        padding: Math.max(1, dp)

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollBar {}
        }

        background: Rectangle {
            radius: Theme.radius(root.size)
            color: bs["dropdown-bg"]
            border.width: Math.max(1, dp)
            border.color: bs["dropdown-border"]

            Shadow {}
        }
    }

    TouchReach {
        control: root
    }
}
