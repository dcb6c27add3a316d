// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Particles 2.15

Rectangle {
    id: root

    readonly property string media: "../../../demos/Retail Window/"

    width: 1080
    height: 1920
    color: "#3b1219"

    component Kicker: Label { x: 96; y: 112; font { bold: true; pixelSize: 32; letterSpacing: 5 } }
    component Title: Headline { x: 88; y: 160 }
    component Brand: Headline { x: 624; y: 1704; width: 360; height: 120; text: "Lind & Rose"; horizontalAlignment: Text.AlignRight; verticalAlignment: Text.AlignVCenter; lineHeight: 1; font.pixelSize: 48 }
    component Offer: Plate { x: 96; y: 1704; height: 120; pixelSize: 48 }

    Show {
        anchors.fill: parent
        durations: [11000, 11000, 10000]

        Zoom {
            anchors.fill: parent
            source: root.media + "images/scent.jpg"
            to: 1.04

            Kicker { text: "NEW: N° 7, EMBER"; color: "#5e1622" }
            Title { text: "Amber,\nslowly lit"; color: "#3b0f18" }
            Brand { color: "#3b0f18" }
            Offer { width: 472; text: "Ember, 50 ml: 68 €"; color: "#fff4ec"; ground: "#6d1826" }
        }

        Zoom {
            anchors.fill: parent
            source: root.media + "images/boxes.jpg"
            from: 1.06
            to: 1

            Kicker { text: "GIFTS, WRAPPED"; color: "#e8c98f" }
            Title { text: "A parcel\nfor each"; color: "#fbf3e4" }
            Brand { color: "#fbf3e4" }
            Offer { width: 600; text: "Wrapped while you wait"; color: "white"; ground: "#b3262f" }
        }

        Rectangle {
            anchors.fill: parent
            color: "#4a0f1a"

            Image { anchors.fill: parent; source: root.media + "images/stage.jpg"; fillMode: Image.PreserveAspectCrop; mipmap: true }
            ParticleSystem {
                id: system
                anchors.fill: parent
                running: parent.visible
                opacity: 0.7

                ImageParticle {
                    source: "../../../qml/Components/icons/particle.svg"
                    color: "#ffd9a0"
                    colorVariation: 0.15
                    alpha: 0.75
                    alphaVariation: 0.25
                }
                Emitter {
                    anchors.fill: parent
                    emitRate: 6
                    lifeSpan: 16000
                    lifeSpanVariation: 5333
                    startTime: 16000
                    size: 36
                    sizeVariation: 25
                    velocity: AngleDirection { angle: 90; angleVariation: 20; magnitude: 90; magnitudeVariation: 45 }
                }
            }

            Clip { id: card; width: 960; height: 640; visible: false; muted: true; autoPlay: true; source: root.media + "videos/card.mp4" }
            ShaderEffect {
                property var source: ShaderEffectSource { sourceItem: card }

                x: 60
                y: 640
                width: 960
                height: 640
                fragmentShader: "
                    varying highp vec2 qt_TexCoord0;
                    uniform lowp sampler2D source;
                    uniform lowp float qt_Opacity;
                    void main() {
                        lowp vec4 c = texture2D(source, qt_TexCoord0);
                        lowp float green = c.g - max(c.r, c.b);
                        lowp float a = 1.0 - smoothstep(0.05, 0.3, green);
                        c.g -= max(green, 0.0);
                        gl_FragColor = vec4(c.rgb * a, a) * qt_Opacity;
                    }"
            }

            Kicker { text: "GIFT CARDS"; color: "#ffcf8f" }
            Title { text: "One size\nfits all"; color: "#fff4ec" }
            Brand { color: "#fff4ec" }
            Offer { width: 512; text: "From 20 €, at the till"; color: "#3b0f18"; ground: "#f3d9b0" }
        }
    }
}
