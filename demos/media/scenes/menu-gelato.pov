// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Ice cream in a bowl.
#include "kitchen.inc"

FoodCamera(<0, 6.2, -8.6>, <0, 1.3, 0>, 29)
Table()

object { Bowl(srgb <0.30, 0.40, 0.42>) scale <1.28, 1.35, 1.28> translate y * 0.1 }
#macro Scoop(Tint, Where) sphere { 0, 0.72 pigment { granite scale 0.5 color_map { [0 Tint * 0.9] [1 Tint] } } normal { granite 0.35 scale 0.3 } finish { ambient 0 diffuse 0.85 specular 0.08 roughness 0.1 } translate Where } #end
Scoop(srgb <0.95, 0.88, 0.70>, <-0.52, 1.15, -0.25>)
Scoop(srgb <0.86, 0.44, 0.42>, <0.55, 1.15, -0.2>)
Scoop(srgb <0.66, 0.72, 0.46>, <0.02, 1.3, 0.5>)
object { Leaf(0.4, srgb <0.22, 0.46, 0.18>) rotate <-30, 40, 10> translate <0.1, 1.9, -0.2> }
object { Leaf(0.34, srgb <0.24, 0.50, 0.20>) rotate <-24, 160, 0> translate <-0.15, 1.88, -0.1> }
cylinder { <0.7, 1.3, 0.5>, <1.35, 2.7, 0.7>, 0.12 pigment { wood scale 0.12 color_map { [0 srgb <0.80, 0.58, 0.32>] [1 srgb <0.66, 0.44, 0.22>] } } finish { ambient 0 diffuse 0.8 } }
