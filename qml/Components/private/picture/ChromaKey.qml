// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Draws its source without green: the first Vlahos assumption for the alpha, the spill taken out of green and put back
/// as light, premultiplied result.
ShaderEffect {
    property var source
    property real th: 3.5
    property real a2: 1.2
    property real amt: 0.03
    property color bg: "white"
    property real plus: 0

    fragmentShader: "
        varying highp vec2 qt_TexCoord0;
        uniform lowp sampler2D source;
        uniform lowp float qt_Opacity;
        uniform highp float th;
        uniform highp float a2;
        uniform highp float amt;
        uniform highp vec4 bg;
        uniform highp float plus;
        void main() {
            highp vec3 c = texture2D(source, qt_TexCoord0).rgb;
            highp float a = clamp(1.0 - th * (c.g - a2 * max(c.r, c.b)), 0.0, 1.0);
            highp float sub = max(c.g - (0.55 * c.b + 0.45 * c.r), 0.0);
            c.g -= sub;
            a -= smoothstep(amt, amt + 0.25, sub * a);
            // Black has no light to take from; without the bound it would divide by zero.
            highp float luma = max(dot(c, bg.rgb), 0.00001);
            c += sub * c * 2.0 * bg.rgb / luma + plus;
            gl_FragColor = vec4(c * a, a) * qt_Opacity;
        }"
}
