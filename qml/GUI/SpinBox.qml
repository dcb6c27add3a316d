// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "private"

/// A number to type or to step. `decimals` digits after the point; `realValue`, `realFrom`, `realTo` and `realStep`
/// are in the number's own unit. Up and Down step, the wheel too while it has the focus.
T.SpinBox {
    id: root

    property string size: "base"
    property string suffix
    property int decimals: 0
    property real realFrom: 0
    property real realTo: 100
    property real realStep: 1
    property real realValue: 0

    readonly property real factor: Math.pow(10, decimals)

    // The user changed the number.
    signal realModified()

    // What was typed, in steps of the last digit; the old value where it is no number.
    function read(text, locale) {
        const digits = text.replace(suffix, "").trim();
        try {
            return digits === "" ? value : Math.round(Number.fromLocaleString(locale, digits) * factor);
        } catch (noNumber) {
            return value;
        }
    }

    implicitWidth: 16 * Theme.unit
    implicitHeight: Math.max(Theme.controlHeight(size), Math.ceil(contentItem.contentHeight))
    leftPadding: Theme.padding(size)
    rightPadding: up.indicator.width
    opacity: enabled ? 1 : 0.5
    from: Math.round(realFrom * factor)
    to: Math.round(realTo * factor)
    stepSize: Math.max(1, Math.round(realStep * factor))
    value: Math.round(realValue * factor)
    editable: true
    hoverEnabled: true
    wheelEnabled: activeFocus
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSize(size)
    textFromValue: (value, locale) => Number(value / factor).toLocaleString(locale, "f", decimals) + suffix
    valueFromText: read
    onValueModified: {
        realValue = value / factor;
        realModified();
    }

    validator: RegExpValidator {
        regExp: /^[-+0-9.,]*.*$/
    }

    contentItem: TextInput {
        text: root.displayText
        readOnly: !root.editable
        validator: root.validator
        selectByMouse: true
        clip: width < implicitWidth
        verticalAlignment: TextInput.AlignVCenter
        color: bs["input-color"]
        selectionColor: Theme.accent
        selectedTextColor: Theme.surface
        font: root.font
    }

    up.indicator: SpinStep {
        control: root
        faIcon: "fa-angle-up"
        isUp: true
        part: root.up
    }

    down.indicator: SpinStep {
        control: root
        faIcon: "fa-angle-down"
        part: root.down
    }

    background: FieldFrame {
        control: root
    }
}
