// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Boxes, radios, lists to choose from, sliders and numbers.
Card {
    id: root

    title: qsTr("Choices")

    StateRow {
        label: qsTr("Check boxes: off, on, partly, pressed, disabled")

        CheckBox { text: qsTr("Off") }
        CheckBox { text: qsTr("On"); checked: true }
        CheckBox { text: qsTr("Partly"); tristate: true; checkState: Qt.PartiallyChecked }
        CheckBox { text: qsTr("Pressed"); down: true }
        CheckBox { text: qsTr("Disabled"); checked: true; enabled: false }
    }

    StateRow {
        label: qsTr("Radios")

        Radio { text: qsTr("None"); checked: true }
        Radio { text: qsTr("Cloud") }
        Radio { text: qsTr("Pressed"); down: true }
        Radio { text: qsTr("Disabled"); enabled: false }
    }

    StateRow {
        label: qsTr("Radio group, at the touch size")

        RadioGroup {
            width: root.contentWidth
            size: "large"
            currentIndex: 0
            model: [qsTr("Play"), qsTr("Edit"), qsTr("Dash"), qsTr("Main")]
        }
    }

    SwitchTabs {
        width: parent.width
        currentIndex: 1
        model: [{ "text": qsTr("Local"), "faIcon": "fa-hdd" }, { "text": qsTr("Store"), "faIcon": "fa-shopping-cart" },
                { "text": qsTr("Cloud"), "faIcon": "fa-cloud" }]
    }

    StateRow {
        label: qsTr("Combo boxes: chosen, empty, disabled, large")

        ComboBox { width: 16 * Theme.unit; model: [qsTr("Cut"), qsTr("Fade"), qsTr("Zoom"), qsTr("Wipe")] }
        ComboBox { width: 16 * Theme.unit; model: [qsTr("One")]; currentIndex: -1; placeholderText: qsTr("Choose") }
        ComboBox { width: 16 * Theme.unit; model: [qsTr("Cut")]; enabled: false }
        ComboBox { width: 20 * Theme.unit; model: [qsTr("Cut"), qsTr("Fade")]; size: "large" }
    }

    StateRow {
        label: qsTr("Sliders")

        Slider { value: 0.4 }
        Slider { value: 0.7; enabled: false }
        Slider { value: 0.5; size: "large" }
    }

    StateRow {
        label: qsTr("Numbers: whole, with decimals, at the end, disabled, large")

        SpinBox { width: 12 * Theme.unit; realTo: 3840; realValue: 1920 }
        SpinBox { width: 12 * Theme.unit; decimals: 1; realValue: 1.5; realStep: 0.1; suffix: " s" }
        SpinBox { width: 12 * Theme.unit; realValue: 100 }
        SpinBox { width: 12 * Theme.unit; realValue: 30; enabled: false }
        SpinBox { width: 14 * Theme.unit; realValue: 30; size: "large" }
    }
}
