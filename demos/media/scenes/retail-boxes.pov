// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A tower of gifts, for a tall window.
#include "studio.inc"
#include "props.inc"
#include "gifts.inc"

camera { location <0, 5.2, -22> right x * image_width / image_height look_at <0, 4.0, 0> angle 22 }

StudioLight(<-9, 14, -12>, srgb <1, 0.95, 0.88>, 1.6, 3)
light_source { <12, 6, -10> srgb <0.8, 0.95, 0.9> * 0.35 shadowless }
Backdrop(srgb <0.20, 0.34, 0.31>)

#declare Ribbon = texture { pigment { srgb <0.72, 0.16, 0.18> } finish { ambient 0 diffuse 0.7 specular 0.3 roughness 0.03 } }
#declare Linen = texture { pigment { srgb <0.94, 0.89, 0.80> } finish { ambient 0 diffuse 0.8 } }
object { Parcel(<4.4, 1.9, 3.6>, srgb <0.90, 0.84, 0.73>, Ribbon) rotate y * 12 translate <0, 0, 1.2> }
object { Parcel(<3.3, 1.5, 2.9>, srgb <0.66, 0.14, 0.16>, Linen) rotate y * -9 translate <0.1, 1.93, 1.2> }
object { Parcel(<2.3, 1.3, 2.1>, srgb <0.32, 0.46, 0.41>, Ribbon) rotate y * 24 translate <-0.05, 3.46, 1.2> }
object { Box(<1.5, 0.9, 1.4>, srgb <0.88, 0.66, 0.36>, Ribbon) rotate y * -6 translate <0.05, 4.78, 1.2> }
object { Bauble(0.62, srgb <0.72, 0.16, 0.18>) translate <2.5, 0, -1.7> }
object { Bauble(0.44, srgb <0.90, 0.72, 0.42>) translate <1.4, 0, -2.3> }
object { Bauble(0.5, srgb <0.92, 0.89, 0.82>) translate <-2.4, 0, -1.8> }
