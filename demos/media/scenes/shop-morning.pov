// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Breakfast stoneware in morning light, room for words at the left.
#include "studio.inc"
#include "props.inc"

#declare Sand = srgb <0.90, 0.83, 0.74>;
#declare Cream = srgb <0.95, 0.91, 0.84>;
#declare Terra = srgb <0.76, 0.42, 0.29>;
#declare Sage = srgb <0.60, 0.66, 0.55>;
#declare Ink = srgb <0.20, 0.24, 0.30>;

camera {
  location <-0.6, 6.4, -20>
  right x * image_width / image_height
  look_at <-1.4, 1.95, 0>
  angle 41
}

StudioLight(<-13, 12, -9>, srgb <1, 0.93, 0.82>, 1.35, 3)
light_source { <14, 6, -10> srgb <0.75, 0.82, 1> * 0.22 shadowless }
Backdrop(Sand)

union {
  lathe { cubic_spline 11, <0.3, -0.1>, <0.001, 0>, <0.72, 0.02>, <1.0, 0.5>, <1.08, 1.2>, <0.86, 2.05>, <0.52, 2.65>, <0.48, 3.1>, <0.60, 3.42>, <0.57, 3.43>, <0.5, 3.4> Stoneware(Cream, 1) }
  cylinder { <0, 3.2, 0>, <0, 3.25, 0>, 0.45 pigment { rgb 0.01 } }
  object { Grass(23, 12) translate y * 3 }
  translate <4.0, 0, 2.6>
}
union {
  object { Plate(1.75, Ink) }
  object { Plate(1.72, Ink) translate <0.03, 0.14, 0.02> }
  object { Plate(1.45, Sage) translate <-0.02, 0.28, 0> }
  object { Plate(1.42, Sage) translate <0.03, 0.42, 0.03> }
  object { Bowl(Cream) translate <0, 0.56, 0> }
  translate <0.9, 0, 1.9>
}
union { object { Saucer(Terra) } object { Cup(Terra, Cream) rotate y * 28 translate y * 0.08 } translate <2.0, 0, -2.0> }
object { Cup(Sage, Cream) rotate y * -35 translate <4.4, 0, -0.7> }
object { Pear() rotate z * -8 rotate y * 40 translate <-1.7, 0.02, 0.1> }
object { Pear() scale 0.94 rotate z * 84 rotate y * 190 translate <-1.2, 0.64, -2.0> }
