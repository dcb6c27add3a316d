// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

/// What a chroma key removes and how sharply.
struct ChromaKey
{
    float th = 3.5F;                          ///< how quickly green turns transparent
    float a2 = 1.2F;                          ///< how much greener than red and blue a pixel may be
    float amt = 0.03F;                        ///< spill from which on a pixel fades
    float plus = 0;                           ///< added to each channel when its light is restored
    float bgRed = 1, bgGreen = 1, bgBlue = 1; ///< colour that replaces the spilt green light
};

/// A pixel, each channel from 0 to 1 unless arithmetic takes it further.
struct Pixel
{
    float r, g, b, a;
};

/// The pixel that shows in the place of `pixel`: green and its spill removed, premultiplied with alpha.
/// `pixel`'s own alpha does not count. Where no light is left to restore, none is added. The same arithmetic
/// as the fragment shader of "ChromaVideo". Any thread.
Pixel keyPixel(const Pixel& pixel, const ChromaKey& key);
