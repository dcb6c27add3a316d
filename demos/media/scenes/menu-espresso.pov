// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Espresso, before the steam is added.
#include "kitchen.inc"

FoodCamera(<0, 6.0, -9.6>, <0.1, 0.95, 0.2>, 29)
Table()

light_source { <5, 6, 7> srgb <1, 0.75, 0.5> * 0.9 }
light_source { <-2, 4, 5> srgb <1, 0.6, 0.36> * 0.8 shadowless fade_distance 5 fade_power 2 }
union { object { Saucer(srgb <0.90, 0.87, 0.82>) } object { Cup(srgb <0.90, 0.87, 0.82>, srgb <0.9, 0.87, 0.82>) rotate y * -20 translate y * 0.08 }
  cylinder { <0, 0.985, 0>, <0, 0.99, 0>, 0.79 pigment { bozo turbulence 0.7 scale 0.4 color_map { [0 srgb <0.36, 0.19, 0.09>] [0.5 srgb <0.50, 0.30, 0.15>] [1 srgb <0.62, 0.43, 0.24>] } } finish { ambient 0 diffuse 0.75 specular 0.2 roughness 0.03 } } }
#declare S = seed(4);
#for (I, 0, 60)
  #declare A = rand(S) * 6.28; #declare R = 1.9 + rand(S) * 1.9;
  union { sphere { 0, 1 scale <0.16, 0.1, 0.11> } pigment { srgb <0.20, 0.10, 0.05> } finish { ambient 0 diffuse 0.7 specular 0.35 roughness 0.03 } rotate <rand(S) * 40, rand(S) * 360, rand(S) * 40> translate <cos(A) * R * 1.4 - 0.3, 0.09, sin(A) * R * 0.8 + 0.4> }
#end
