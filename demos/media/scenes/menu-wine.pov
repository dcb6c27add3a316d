// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Red wine.
#include "kitchen.inc"

FoodCamera(<0, 3.3, -13>, <0.1, 3.0, 0>, 27)
Table()
plane { -z, -7 pigment { srgb <0.30, 0.20, 0.16> } finish { ambient 0 diffuse 0.7 } }
// The glow of the room behind, seen through the wine.
light_source { <1.4, 4.6, 4.2> srgb <1, 0.76, 0.55> * 2.2 shadowless fade_distance 3 fade_power 2 }
light_source { <-3, 4, -12> srgb 0.5 shadowless }

object { WineGlass(srgbf <0.80, 0.06, 0.10, 0.85>) translate <0.75, 0, -0.4> }
union {
  lathe { cubic_spline 12, <0.5, -0.1>, <0.001, 0>, <0.92, 0.02>, <0.95, 0.2>, <0.95, 3.0>, <0.90, 3.4>, <0.42, 4.0>, <0.33, 4.5>, <0.32, 5.4>, <0.36, 5.42>, <0.34, 5.6>, <0.3, 5.6>
    pigment { srgb <0.05, 0.09, 0.05> } finish { ambient 0 diffuse 0.5 specular 0.7 roughness 0.008 reflection { 0.03, 0.5 fresnel on } } interior { ior 1.5 } }
  difference { cylinder { <0, 0.9, 0>, <0, 2.6, 0>, 0.962 } plane { -z, 0.15 } pigment { srgb <0.90, 0.86, 0.76> } finish { ambient 0 diffuse 0.8 } }
  difference { union { cylinder { <0, 2.3, 0>, <0, 2.38, 0>, 0.966 } cylinder { <0, 2.22, 0>, <0, 2.24, 0>, 0.966 } cylinder { <0, 1.96, 0>, <0, 1.98, 0>, 0.966 } } plane { -z, 0.15 } pigment { srgb <0.62, 0.24, 0.16> } finish { ambient 0 diffuse 0.8 } }
  translate <-1.0, 0, 0.8>
}
#declare S = seed(2);
#for (I, 0, 15) sphere { <1.9 + mod(I, 4) * 0.36 - 0.3 * (I > 9), 0.3 + int(I / 8) * 0.3, -1.2 + mod(int(I / 4), 2) * 0.4 + rand(S) * 0.1>, 0.26 pigment { srgb <0.24, 0.10, 0.22> } finish { ambient 0 diffuse 0.7 specular 0.35 roughness 0.03 } } #end
