// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A gift card that sways to either side before a green screen.
#declare Film = 1;
#include "studio.inc"
#include "gifts.inc"

camera { location <0, 0.5, -14> right x * image_width / image_height look_at 0 angle 24 }

background { srgb <0, 1, 0> }
// What the foil mirrors is a warm room and not the screen.
sphere { 0, 60 pigment { gradient y scale 120 translate y * -60 color_map { [0 srgb <0.35, 0.14, 0.14>] [1 srgb <1, 0.92, 0.84>] } } finish { ambient 0 diffuse 0 emission 0.8 } no_image no_shadow }
StudioLight(<-6, 9, -11>, srgb <1, 0.96, 0.90>, 1.45, 3)
light_source { <9, 5, -9> srgb <0.95, 0.95, 1> * 0.4 shadowless }
object {
  GiftCard(srgb <0.96, 0.92, 0.85>, Ribbon)
  rotate <4, 26 * sin(2 * pi * clock), 0>
  translate y * 0.08 * sin(4 * pi * clock)
}
