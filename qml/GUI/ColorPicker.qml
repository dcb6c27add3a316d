// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"

/// Chooses a colour: a plane of saturation and brightness, strips of hue and opacity, the hexadecimal name, a palette,
/// and the colours that are in use.
FocusScope {
    id: root

    property string size: "base"
    property color color: "#428bca"
    property bool hasOpacity: true
    property var palette: ["#ffffff", "#c5ccd6", "#5e6978", "#1e252e", "#000000", bs["brand-primary"],
                           bs["brand-info"], bs["brand-success"], bs["brand-warning"], bs["brand-danger"], "#8e44ad",
                           "#00000000"]
    /// Colours that are in use, shown below a title of their own.
    property var used: []

    // Kept apart from the colour, as a grey has no hue and black no saturation.
    property real hue: 0
    property real saturation: 0
    property real brightness: 0

    // The user chose a colour; told for each step while the mouse drags.
    signal picked(color color)

    function adopt() {
        if (Qt.colorEqual(color, Qt.hsva(hue, saturation, brightness, color.a)))
            return;
        if (color.hsvSaturation > 0)
            hue = color.hsvHue;
        if (color.hsvValue > 0)
            saturation = color.hsvSaturation;
        brightness = color.hsvValue;
    }

    function pick(chosen) {
        color = chosen;
        picked(chosen);
    }

    function mix(h, s, v) {
        hue = h;
        saturation = s;
        brightness = v;
        pick(Qt.hsva(h, s, v, color.a));
    }

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight
    onColorChanged: adopt()
    Component.onCompleted: adopt()

    Column {
        id: column
        spacing: Theme.unit

        ColorPlane {
            focus: true
            hue: root.hue
            saturation: root.saturation
            brightness: root.brightness
            onMoved: root.mix(root.hue, saturation, brightness)
        }

        ColorStrip {
            width: parent.width
            size: root.size
            value: root.hue
            onMoved: root.mix(value, root.saturation, root.brightness)
            Accessible.name: qsTr("Hue")
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "#f00" }
                GradientStop { position: 1 / 6; color: "#ff0" }
                GradientStop { position: 2 / 6; color: "#0f0" }
                GradientStop { position: 3 / 6; color: "#0ff" }
                GradientStop { position: 4 / 6; color: "#00f" }
                GradientStop { position: 5 / 6; color: "#f0f" }
                GradientStop { position: 1; color: "#f00" }
            }
        }

        ColorStrip {
            width: parent.width
            visible: root.hasOpacity
            size: root.size
            value: root.color.a
            onMoved: root.pick(Qt.rgba(root.color.r, root.color.g, root.color.b, value))
            Accessible.name: qsTr("Opacity")
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "transparent" }
                GradientStop { position: 1; color: Qt.hsva(root.hue, root.saturation, root.brightness, 1) }
            }
        }

        SwatchFlow {
            width: parent.width
            picker: root
            samples: root.palette
        }

        Label {
            visible: usedFlow.visible
            size: "small"
            muted: true
            text: qsTr("In this project")
        }

        SwatchFlow {
            id: usedFlow
            objectName: "usedColors"
            width: parent.width
            visible: root.used.length > 0
            picker: root
            samples: root.used
        }

        HexField {
            width: parent.width
            size: root.size
            color: root.color
            onPicked: root.pick(color)
        }
    }
}
