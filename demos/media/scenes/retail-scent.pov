// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A scent bottle on steps, for a tall window.
#include "studio.inc"
#include "props.inc"
#include "gifts.inc"

camera { location <0, 4.6, -21> right x * image_width / image_height look_at <0, 4.1, 0> angle 22 }

StudioLight(<-11, 14, -9>, srgb <1, 0.92, 0.84>, 1.35, 3)
light_source { <12, 6, -10> srgb <1, 0.85, 0.9> * 0.22 shadowless }
Backdrop(srgb <0.80, 0.58, 0.58>)

#declare Stone = srgb <0.88, 0.70, 0.68>;
cylinder { <0, 0, 1.4>, <0, 0.9, 1.4>, 3.3 Clay(Stone) }
cylinder { <0.3, 0.9, 1.6>, <0.3, 1.7, 1.6>, 2.2 Clay(Stone * 0.96) }
object { Scent(srgb <0.86, 0.45, 0.32>) scale 1.12 rotate y * 16 translate <0.35, 1.7, 1.3> }
difference { torus { 3.1, 0.16 rotate x * 90 translate <0, 4.1, 3.6> } plane { y, -1 } texture { Gold } }
object { Branch(4.4, 1.3, srgb <0.55, 0.60, 0.48>, 31) translate <-2.2, 0.9, 2.6> }
object { Branch(3.6, -0.8, srgb <0.50, 0.57, 0.45>, 14) rotate y * 50 translate <-2.0, 0.9, 2.4> }
object { Bauble(0.55, srgb <0.55, 0.14, 0.20>) translate <-1.9, 0, -1.9> }
object { Bauble(0.36, srgb <0.86, 0.66, 0.40>) translate <-0.8, 0, -2.3> }
object { Box(<1.7, 1.0, 1.7>, srgb <0.55, 0.16, 0.20>, Gold) rotate y * 28 translate <2.3, 0, -1.6> }
