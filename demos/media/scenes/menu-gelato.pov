// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Ice cream in a coupe.
#include "kitchen.inc"

FoodCamera(<0, 4.0, -9.5>, <0, 1.55, 0>, 24)
Table()

lathe { cubic_spline 14, <0.4, -0.1>, <0.001, 0>, <0.8, 0.02>, <0.8, 0.06>, <0.2, 0.16>, <0.12, 0.5>, <0.3, 0.8>, <1.1, 1.2>, <1.35, 1.7>, <1.32, 1.71>, <1.06, 1.24>, <0.3, 0.88>, <0.001, 0.85>, <-0.2, 0.8>
  pigment { rgbt <0.98, 0.99, 0.99, 0.9> } finish { ambient 0 diffuse 0.03 specular 0.9 roughness 0.005 reflection { 0.04, 1 fresnel on } conserve_energy } interior { ior 1.4 } }
#macro Scoop(Tint, Where) sphere { 0, 0.72 pigment { granite scale 0.5 color_map { [0 Tint * 0.9] [1 Tint] } } normal { granite 0.55 scale 0.35 } finish { ambient 0 diffuse 0.85 specular 0.08 roughness 0.1 } translate Where } #end
Scoop(srgb <0.95, 0.88, 0.70>, <-0.52, 1.75, -0.25>)
Scoop(srgb <0.86, 0.44, 0.42>, <0.55, 1.75, -0.2>)
Scoop(srgb <0.66, 0.72, 0.46>, <0.02, 1.85, 0.55>)
object { Leaf(0.4, srgb <0.22, 0.46, 0.18>) rotate <-30, 40, 10> translate <0.1, 2.5, 0.1> }
object { Leaf(0.34, srgb <0.24, 0.50, 0.20>) rotate <-24, 160, 0> translate <-0.1, 2.45, 0.15> }
cylinder { <0.7, 1.9, 0.5>, <1.35, 3.3, 0.7>, 0.12 pigment { wood scale 0.12 color_map { [0 srgb <0.80, 0.58, 0.32>] [1 srgb <0.66, 0.44, 0.22>] } } finish { ambient 0 diffuse 0.8 } }
