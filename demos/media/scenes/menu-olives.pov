// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A bowl of olives.
#include "kitchen.inc"

FoodCamera(<0, 4.6, -7.6>, <0, 0.72, 0>, 25)
Table()

object { Bowl(srgb <0.62, 0.33, 0.22>) scale <1.5, 1.1, 1.5> }
#declare S = seed(5);
#for (I, 0, 46)
  #declare A = I * 2.4; #declare R = 1.28 * sqrt(I / 46);
  sphere { 0, 1 scale <0.31, 0.23, 0.23> rotate <rand(S) * 80, rand(S) * 360, rand(S) * 50> translate <cos(A) * R, 0.78 + (1.28 - R) * 0.2 + rand(S) * 0.06, sin(A) * R>
    #if (mod(I, 3) = 0) pigment { srgb <0.16, 0.10, 0.12> } #else pigment { srgb <0.50 + rand(S) * 0.1, 0.54, 0.16> } #end
    finish { ambient 0 diffuse 0.7 specular 0.6 roughness 0.015 reflection { 0.02, 0.2 fresnel on } } interior { ior 1.4 } }
#end
object { Branch(2.8, 0.9, srgb <0.42, 0.50, 0.30>, 12) scale 0.8 rotate x * 90 rotate y * 60 translate <-2.6, 0.2, -1.5> }
