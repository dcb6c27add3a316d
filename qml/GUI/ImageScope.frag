// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A round or elliptic window onto a part of a picture. _rX and _rY: corner radius as a fraction of the window's
// width and height; _w and _h: size of the window, _cX and _cY: its top left corner, as fractions of the picture.
#ifdef GL_ES
#ifdef GL_FRAGMENT_PRECISION_HIGH
precision highp float;
#else
precision mediump float;
#endif
#else
#define lowp
#define mediump
#define highp
#endif

varying vec2 qt_TexCoord0;
uniform sampler2D _image;
uniform lowp float qt_Opacity;
uniform float _rX;
uniform float _rY;
uniform float _w;
uniform float _h;
uniform float _cX;
uniform float _cY;

float sq(float value)
{
    return value * value;
}

bool isCutOff(vec2 point)
{
    float dx = max(max(_rX - point.x, point.x - (1.0 - _rX)), 0.0);
    float dy = max(max(_rY - point.y, point.y - (1.0 - _rY)), 0.0);
    return dx > 0.0 && dy > 0.0 && sq(dx) / sq(_rX) + sq(dy) / sq(_rY) > 1.0;
}

bool isOutside(vec2 point)
{
    return point.x < 0.0 || point.x > 1.0 || point.y < 0.0 || point.y > 1.0;
}

void main()
{
    vec2 mapped = qt_TexCoord0 * vec2(_w, _h) + vec2(_cX, _cY);
    float opacity = isCutOff(qt_TexCoord0) || isOutside(mapped) ? 0.0 : qt_Opacity;
    gl_FragColor = texture2D(_image, mapped) * opacity;
}
