// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Particles 2.15
import "private"
import "private/picture"
import "private/picture/media.js" as Media
import "private/presence.js" as Presence

/// A stream of particles: glowing dots that rise, or any small picture in any direction.
Item {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "Particles {
    width: 480
    height: 360
    source: 'qrc:///Nuvex/Components/icons/particle.png'
    emitRate: 12
    lifeSpan: 6000
    size: 48
    velocity: 60
    color: '#f2b04a'
}"

    property url source: "qrc:///Nuvex/Components/icons/particle.png"
    /// Particles a second, their life in milliseconds, their size in pixels, their speed in pixels a second.
    property real emitRate: 12
    property int lifeSpan: 6000
    property real size: 48
    property real velocity: 60
    property color color: "#f2b04a"
    /// Where they move, in degrees clockwise from the right; 270 is upwards.
    property real direction: 270

    width: 480
    height: 360
    clip: true
    Component.onCompleted: editor = Qt.createComponent("ParticlesEditor.qml")

    ParticleSystem {
        id: system
        running: root.visible && Presence.presenceOf(root) === Presence.shown
    }

    ImageParticle {
        system: system
        source: picture.dot
        color: root.color
        colorVariation: 0.15
        alpha: 0.75
        alphaVariation: 0.25
        entryEffect: ImageParticle.Fade
    }

    Emitter {
        system: system
        anchors.fill: parent
        enabled: picture.isReady
        emitRate: Math.max(0, Math.min(1000, root.emitRate))
        lifeSpan: Math.max(0, Math.min(60000, root.lifeSpan))
        lifeSpanVariation: lifeSpan / 3
        maximumEmitted: 5000
        // As if it had been running for a while.
        startTime: lifeSpan
        size: Math.max(0, root.size)
        sizeVariation: size * 0.7
        velocity: AngleDirection {
            angle: root.direction
            angleVariation: 20
            magnitude: root.velocity
            magnitudeVariation: root.velocity / 2
        }
    }

    ParticlePicture {
        id: picture
        address: Media.address(root.source)
    }

    Component {
        id: preview

        PreviewTile {
            icon: "Particles"
        }
    }
}
