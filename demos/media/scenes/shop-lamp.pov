// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A lamp in the evening, room for words at the left.
#include "studio.inc"
#include "props.inc"

camera {
  location <0, 4.0, -20>
  right x * image_width / image_height
  look_at <-2.5, 2.75, 0>
  angle 40
}

light_source { <-12, 12, -10>, srgb <0.55, 0.68, 0.9> * 0.75 area_light x * 4, y * 4, 5, 5 adaptive 1 jitter circular orient }
Backdrop(srgb <0.27, 0.36, 0.40>)

object { Lamp(srgb <0.83, 0.47, 0.30>, srgb <1, 0.80, 0.52>) translate <1.5, 0.86, 1> }
union {
  object { Book(<3.2, 0.38, 2.3>, srgb <0.55, 0.24, 0.18>) translate <-1.6, 0, -1.15> rotate y * 9 }
  object { Book(<2.9, 0.46, 2.1>, srgb <0.82, 0.74, 0.60>) translate <-1.45, 0.39, -1.05> rotate y * -6 }
  translate <1.5, 0, 0.6>
}
object { Cup(srgb <0.90, 0.86, 0.78>, srgb <0.9, 0.86, 0.78>) rotate y * 150 translate <-1.7, 0, -1.6> }
union {
  lathe { cubic_spline 9, <0.3, -0.1>, <0.001, 0>, <0.5, 0.02>, <0.8, 0.6>, <0.62, 1.4>, <0.3, 1.8>, <0.36, 2.1>, <0.33, 2.1>, <0.3, 2> Stoneware(srgb <0.32, 0.42, 0.42>, 1) }
  object { Branch(2.2, 1.0, srgb <0.40, 0.48, 0.36>, 4) translate y * 1.6 }
  object { Branch(1.8, -0.9, srgb <0.36, 0.45, 0.34>, 8) rotate y * 40 translate y * 1.6 }
  translate <4.6, 0, 1.6>
}
