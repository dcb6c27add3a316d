// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "values.js" as Values

/// A number to type or to step.
PanelRow {
    id: root

    property alias from: box.realFrom
    property alias to: box.realTo
    property alias step: box.realStep
    property alias decimals: box.decimals
    property alias suffix: box.suffix
    /// How many of the property's units one of the shown units is.
    property real unit: 1
    readonly property alias box: box

    finishesItself: true
    onValueChanged: {
        if (pending === "" && isFinite(value))
            box.realValue = value / unit;
    }

    BGUI.SpinBox {
        id: box
        width: Math.min(parent.width, 20 * BGUI.Theme.unit)
        size: root.size
        realTo: 10000
        Accessible.name: root.label
        onRealModified: root.change(Values.number(realValue * root.unit, decimals))
        onActiveFocusChanged: {
            if (!activeFocus)
                root.finish();
        }
    }
}
