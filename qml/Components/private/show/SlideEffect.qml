// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Draws a slide as one picture, uncovered as far as `reveal` says, with a soft edge.
ShaderEffect {
    property var source
    property real reveal: 1
    property real down: 0

    fragmentShader: "
        varying highp vec2 qt_TexCoord0;
        uniform lowp sampler2D source;
        uniform lowp float qt_Opacity;
        uniform highp float reveal;
        uniform highp float down;
        void main() {
            highp float at = mix(qt_TexCoord0.x, qt_TexCoord0.y, down);
            highp float edge = reveal * 1.15;
            lowp float shown = 1.0 - smoothstep(edge - 0.15, edge, at);
            gl_FragColor = texture2D(source, qt_TexCoord0) * max(shown, step(1.0, reveal)) * qt_Opacity;
        }"
}
