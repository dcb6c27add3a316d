// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Three vases with branches, room for words at the right.
#include "studio.inc"
#include "props.inc"

#declare Rose = srgb <0.85, 0.66, 0.56>;
#declare Cream = srgb <0.96, 0.92, 0.86>;
#declare Terra = srgb <0.70, 0.34, 0.22>;
#declare Moss = srgb <0.36, 0.42, 0.33>;

camera {
  location <0.9, 4.6, -20>
  right x * image_width / image_height
  look_at <2.2, 2.6, 0>
  angle 35
}

StudioLight(<-9, 17, -9>, srgb <1, 0.95, 0.88>, 1.35, 3)
light_source { <12, 5, -12> srgb <0.9, 0.85, 1> * 0.2 shadowless }
Backdrop(Rose)

// Round, tall and slim.
union {
  lathe { cubic_spline 10, <0.3, -0.1>, <0.001, 0>, <0.75, 0.02>, <1.35, 0.7>, <1.42, 1.35>, <1.0, 2.15>, <0.42, 2.55>, <0.40, 2.8>, <0.52, 2.95>, <0.5, 2.9> Stoneware(Cream, 1) }
  object { Branch(3.0, 1.4, srgb <0.47, 0.55, 0.44>, 3) translate y * 2.4 }
  object { Branch(2.5, -1.5, srgb <0.47, 0.55, 0.44>, 9) rotate y * 30 translate y * 2.4 }
  object { Branch(2.9, -0.3, srgb <0.42, 0.51, 0.40>, 5) rotate y * 80 translate y * 2.4 }
  translate <-1.0, 0, 1.2>
}
lathe { cubic_spline 11, <0.3, -0.1>, <0.001, 0>, <0.62, 0.02>, <0.70, 0.6>, <0.72, 2.2>, <0.66, 3.2>, <0.34, 3.75>, <0.28, 4.2>, <0.38, 4.55>, <0.35, 4.57>, <0.3, 4.4> Stoneware(Terra, 1) translate <1.6, 0, 2.6> }
union {
  torus { 0.98, 0.42 rotate x * 90 translate y * 1.55 }
  lathe { cubic_spline 8, <0.3, -0.1>, <0.001, 0>, <0.5, 0.02>, <0.54, 0.1>, <0.40, 0.22>, <0.38, 0.4>, <0.36, 0.5>, <0.3, 0.6> }
  lathe { cubic_spline 8, <0.3, 2.5>, <0.36, 2.7>, <0.33, 2.9>, <0.31, 3.15>, <0.40, 3.35>, <0.37, 3.36>, <0.27, 3.1>, <0.2, 2.8> }
  Stoneware(Moss, 1)
  rotate y * 24
  translate <0.9, 0, -1.4>
}
object { Bowl(Cream * 0.97) translate <-3.3, 0, -1.2> }
sphere { <-3.3, 0.62, -1.3>, 0.42 pigment { granite scale 0.9 color_map { [0 srgb <0.86, 0.42, 0.14>] [1 srgb <0.92, 0.52, 0.18>] } } normal { bumps 0.2 scale 0.04 } finish { ambient 0 diffuse 0.75 specular 0.1 roughness 0.06 } }
