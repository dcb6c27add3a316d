// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Particles 2.15

/// One rocket of Fireworks: rises with a trail to a random height, bursts, and after a pause rises again elsewhere.
Item {
    id: root

    property ParticleSystem system
    /// The Fireworks, the rocket's position among its rockets, and the number of spark colours.
    property Item sky
    property int place: 0
    property int colors: 1
    property bool running: false
    property int color: place % colors
    property real peak: 0
    property int rest: 0
    property bool isRising: false

    function fly() {
        isRising = false;
        if (!running)
            return;
        rest = 200 + 1800 * Math.random();
        color = Math.floor(Math.random() * colors);
        x = sky.width * (0.12 + 0.76 * Math.random());
        y = sky.height;
        peak = sky.height * (0.15 + 0.35 * Math.random());
        flight.restart();
    }

    onRunningChanged: {
        flight.stop();
        fly();
    }
    Component.onCompleted: fly()

    Emitter {
        system: root.system
        group: "sparks" + root.color
        enabled: root.isRising
        emitRate: 140
        lifeSpan: 500
        lifeSpanVariation: 200
        size: Math.max(6, root.sky.height / 50)
        endSize: 0
        velocity: AngleDirection {
            angle: 90
            angleVariation: 20
            magnitude: 40
            magnitudeVariation: 30
        }
    }

    Emitter {
        id: burst
        system: root.system
        group: "sparks" + root.color
        enabled: false
        emitRate: 0
        lifeSpan: 1900
        lifeSpanVariation: 500
        maximumEmitted: 400
        size: Math.max(6, root.sky.height / 36)
        sizeVariation: size / 2
        endSize: 1
        velocity: AngleDirection {
            angleVariation: 180
            magnitude: root.sky.height * 0.48
            magnitudeVariation: root.sky.height * 0.36
        }
    }

    // Started anew for each flight, because an animation takes its target when it starts.
    SequentialAnimation {
        id: flight
        onFinished: root.fly()

        PauseAnimation {
            duration: root.rest
        }
        PropertyAction {
            target: root
            property: "isRising"
            value: true
        }
        NumberAnimation {
            target: root
            property: "y"
            to: root.peak
            duration: 1100
            easing.type: Easing.OutQuad
        }
        ScriptAction {
            script: {
                root.isRising = false;
                burst.burst(150);
            }
        }
        // The burst is made with the next frame, from where the rocket is then.
        PauseAnimation {
            duration: 200
        }
    }
}
