// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Particles 2.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media
import "private/presence.js" as Presence

/// Fireworks: rockets rise from the lower edge and burst in changing colours.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Fireworks {
    width: 640
    height: 480
    number: 3
    source: 'qrc:///Nuvex/Components/icons/particle.png'
}"

    /// How many rockets are under way at a time, up to 12.
    property int number: 3
    /// Picture of a spark.
    property url source: "qrc:///Nuvex/Components/icons/particle.png"

    readonly property bool onAir: visible && Presence.presenceOf(root) === Presence.shown
    readonly property var hues: ["#ffd166", "#ef476f", "#4cc9f0", "#80ed99", "#c77dff", "#ff9f1c"]

    width: 640
    height: 480
    clip: true
    Component.onCompleted: editor = Qt.createComponent("FireworksEditor.qml")

    ParticleSystem {
        id: sparkSystem
        running: root.onAir
    }

    // Sparks of one colour form a group; rockets take turns with the groups.
    Repeater {
        model: root.hues

        ImageParticle {
            system: sparkSystem
            groups: ["sparks" + index]
            source: picture.dot
            color: modelData
            colorVariation: 0.08
            alpha: 0.9
            entryEffect: ImageParticle.None
        }
    }

    Gravity {
        system: sparkSystem
        anchors.fill: parent
        groups: root.hues.map(function(hue, i) { return "sparks" + i; })
        magnitude: 90
    }

    Friction {
        system: sparkSystem
        anchors.fill: parent
        groups: root.hues.map(function(hue, i) { return "sparks" + i; })
        factor: 1.6
    }

    Repeater {
        model: Math.max(0, Math.min(12, root.number))

        Rocket {
            system: sparkSystem
            sky: root
            place: index
            running: root.onAir && picture.isReady
            colors: root.hues.length
        }
    }

    ParticlePicture {
        id: picture
        address: Media.address(root.source)
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Fireworks"
        }
    }
}
