// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Tagliatelle with tomatoes.
#include "kitchen.inc"

FoodCamera(<0, 6.2, -8.2>, <0, 0.5, 0.1>, 30)
Table()

object { Plate(2.25, srgb <0.92, 0.89, 0.83>) }
object { Nest(70, srgb <0.95, 0.78, 0.42>, 3) scale 1.15 translate <-0.1, 0.1, 0.1> }
#declare S = seed(8);
#for (I, 0, 4) object { Tomato(0.27) rotate <0, I * 70, 20> translate <cos(I * 1.25 + 0.4) * 1.15, 0.35 + rand(S) * 0.3, sin(I * 1.25 + 0.4) * 1.0> } #end
object { Leaf(0.55, srgb <0.20, 0.44, 0.14>) rotate <-18, 30, 10> translate <0.05, 1.15, -0.1> }
object { Leaf(0.48, srgb <0.24, 0.48, 0.16>) rotate <-10, 130, -14> translate <-0.35, 1.1, 0.1> }
object { Leaf(0.42, srgb <0.18, 0.40, 0.12>) rotate <-22, 250, 6> translate <0.3, 1.12, 0.25> }
