// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/video/chromakey.h"

#include <algorithm>

namespace {

/// GLSL's function of this name.
float smoothstep(float from, float to, float x)
{
    const float t = std::clamp((x - from) / (to - from), 0.0F, 1.0F);
    return t * t * (3 - 2 * t);
}

} // namespace

Pixel keyPixel(const Pixel& pixel, const ChromaKey& key)
{
    auto [r, g, b, a] = pixel;
    a = std::clamp(1 - key.th * (g - key.a2 * std::max(r, b)), 0.0F, 1.0F);

    const float spill = std::max(g - (0.55F * b + 0.45F * r), 0.0F);
    g -= spill;
    a -= smoothstep(key.amt, key.amt + 0.25F, spill * a);

    const float luma = r * key.bgRed + g * key.bgGreen + b * key.bgBlue;
    const float light = luma == 0 ? 0 : spill * 2 / luma;
    r += light * r * key.bgRed + key.plus;
    g += light * g * key.bgGreen + key.plus;
    b += light * b * key.bgBlue + key.plus;
    return {r * a, g * a, b * a, a};
}
