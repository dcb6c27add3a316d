// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "values.js" as Values

/// A number between two ends, with the slider and in figures. Letting go of the slider finishes.
PanelRow {
    id: root

    property alias from: slider.from
    property alias to: slider.to
    property int decimals: 2
    property string suffix
    readonly property alias slider: slider

    finishesItself: !slider.pressed
    onValueChanged: {
        if (pending === "" && isFinite(value))
            slider.value = value;
    }

    BGUI.Slider {
        id: slider
        width: parent.width - figures.width
        size: root.size
        stepSize: (to - from) / 100
        Accessible.name: root.label
        onMoved: root.change(Values.number(value, root.decimals))
        onPressedChanged: {
            if (!pressed)
                root.finish();
        }
    }

    BGUI.Label {
        id: figures
        anchors.right: parent.right
        width: 7 * BGUI.Theme.unit
        height: slider.height
        size: root.size
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        text: Values.number(slider.value, root.decimals) + root.suffix
    }
}
