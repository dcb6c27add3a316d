// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A gift that turns once before a green screen.
#declare Film = 1;
#include "studio.inc"
#include "gifts.inc"

camera { location <0, 3.3, -11> right x * image_width / image_height look_at <0, 1.15, 0> angle 24 }

background { srgb <0, 1, 0> }
StudioLight(<-8, 10, -8>, srgb <1, 0.95, 0.88>, 1.25, 3)
light_source { <9, 5, -9> srgb <0.95, 0.95, 1> * 0.4 shadowless }
light_source { <0, 2, -14> srgb <1, 0.95, 0.9> * 0.25 shadowless }
#declare Ribbon = texture { pigment { srgb <0.95, 0.90, 0.82> } finish { ambient 0 diffuse 0.78 specular 0.2 roughness 0.04 } }
object { Box(<2.3, 1.7, 2.3>, srgb <0.72, 0.14, 0.17>, Ribbon) translate y * 0.05 rotate y * 90 * clock }
