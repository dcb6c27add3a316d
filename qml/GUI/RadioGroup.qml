// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// Radios for the entries of `model`, a list of texts or of objects with "text" and "value". One stop for the Tab
/// key; the arrow keys move the choice. Wraps into further lines where the width is short.
FocusScope {
    id: root

    property var model: []
    property int currentIndex: -1
    property string size: "base"
    property bool vertical: false

    readonly property var currentEntry: (model || [])[currentIndex]
    readonly property string currentText: currentEntry === undefined ? "" : entryText(currentEntry)
    readonly property var currentValue: currentEntry === undefined ? undefined : entryValue(currentEntry)

    // The user chose that entry.
    signal activated(int index)

    function entryText(entry) {
        return entry.text !== undefined ? entry.text : String(entry);
    }

    function entryValue(entry) {
        return entry.value !== undefined ? entry.value : entryText(entry);
    }

    // The index of the entry with that value, or -1.
    function indexOfValue(value) {
        return model.findIndex(entry => entryValue(entry) === value);
    }

    function choose(index) {
        currentIndex = index;
        activated(index);
    }

    function step(by) {
        const next = (Math.max(0, currentIndex) + by + model.length) % model.length;
        radios.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        choose(next);
    }

    function naturalWidth() {
        const widths = [];
        for (let i = 0; i < radios.count; ++i)
            widths.push(radios.itemAt(i) ? radios.itemAt(i).implicitWidth : 0);
        return vertical ? Math.max(0, ...widths) : widths.reduce((sum, width) => sum + width + flow.spacing, 0);
    }

    implicitWidth: naturalWidth()
    implicitHeight: flow.implicitHeight
    Accessible.role: Accessible.Grouping

    Keys.onLeftPressed: step(-1)
    Keys.onUpPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onDownPressed: step(1)

    T.ButtonGroup {
        id: exclusive
    }

    Flow {
        id: flow
        width: root.width
        flow: root.vertical ? Flow.TopToBottom : Flow.LeftToRight
        spacing: root.vertical ? Theme.unit : 2.5 * Theme.unit

        Repeater {
            id: radios
            model: root.model

            Radio {
                T.ButtonGroup.group: exclusive
                activeFocusOnTab: index === Math.max(0, root.currentIndex)
                focus: activeFocusOnTab
                size: root.size
                text: root.entryText(modelData)
                checked: root.currentIndex === index
                onClicked: root.choose(index)
            }
        }
    }
}
