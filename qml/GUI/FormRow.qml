// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// A line of a form: a label, and the control declared inside. Where the width is short the control stands below its
/// label. The control takes the free width when it says `width: parent.width`.
Item {
    id: root

    property string label
    property string size: "base"
    property real labelWidth: 16 * Theme.unit
    // The width that the control wants beside its label, at least.
    property real controlWidth: 24 * Theme.unit
    default property alias control: slot.data
    property alias controlEnabled: slot.enabled
    /// Where the control stands.
    readonly property rect controlRect: Qt.rect(slot.x, slot.y, slot.width, slot.height)

    readonly property bool isNarrow: width < labelWidth + controlWidth

    width: parent ? parent.width : implicitWidth
    implicitWidth: labelWidth + 32 * Theme.unit
    implicitHeight: isNarrow ? slot.y + slot.height : Math.max(caption.height, slot.height)

    Label {
        id: caption
        width: root.isNarrow ? root.width : root.labelWidth - Theme.unit
        height: root.isNarrow ? implicitHeight : Math.max(implicitHeight, Theme.controlHeight(root.size))
        text: root.label
        textFormat: Text.PlainText
        size: root.size
        muted: true
        verticalAlignment: Text.AlignVCenter
    }

    Item {
        id: slot
        x: root.isNarrow ? 0 : root.labelWidth
        y: root.isNarrow ? caption.height + Theme.unit / 2 : Math.max(0, (caption.height - height) / 2)
        width: root.width - x
        height: Math.max(childrenRect.height, Theme.controlHeight(root.size))
    }
}
