// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "."
import "private"

// Chooses a colour: a plane of saturation and brightness, strips of hue and opacity, the hexadecimal name, a palette.
FocusScope {
    id: picker

    property string size: "base"
    property color color: "#428bca"
    property bool hasOpacity: true
    property var palette: ["#ffffff", "#c5ccd6", "#5e6978", "#1e252e", "#000000", bs["brand-primary"],
                           bs["brand-info"], bs["brand-success"], bs["brand-warning"], bs["brand-danger"], "#8e44ad",
                           "#00000000"]

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
            hue: picker.hue
            saturation: picker.saturation
            brightness: picker.brightness
            onMoved: picker.mix(picker.hue, saturation, brightness)
        }

        ColorStrip {
            width: parent.width
            size: picker.size
            value: picker.hue
            onMoved: picker.mix(value, picker.saturation, picker.brightness)
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
            visible: picker.hasOpacity
            size: picker.size
            value: picker.color.a
            onMoved: picker.pick(Qt.rgba(picker.color.r, picker.color.g, picker.color.b, value))
            Accessible.name: qsTr("Opacity")
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "transparent" }
                GradientStop { position: 1; color: Qt.hsva(picker.hue, picker.saturation, picker.brightness, 1) }
            }
        }

        Flow {
            width: parent.width
            spacing: Theme.unit * 0.75

            Repeater {
                model: picker.palette

                SwatchButton {
                    visible: picker.hasOpacity || sample.a === 1
                    size: picker.size
                    sample: modelData
                    selected: Qt.colorEqual(picker.color, sample)
                    onClicked: picker.pick(sample)
                }
            }
        }

        HexField {
            width: parent.width
            size: picker.size
            color: picker.color
            onPicked: picker.pick(color)
        }
    }
}
