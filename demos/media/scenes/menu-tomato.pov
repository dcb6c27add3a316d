// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Tomatoes and basil.
#include "kitchen.inc"

FoodCamera(<0, 4.4, -7.8>, <0.15, 0.78, 0>, 33)
Table()

object { Tomato(0.78) rotate y * 20 translate <-0.95, 0, 0.25> }
object { Tomato(0.86) rotate y * 70 translate <0.75, 0, 0.7> }
object { Tomato(0.66) rotate y * 140 translate <0.15, 0, -0.95> }
object { Tomato(0.5) rotate y * 10 translate <1.5, 0, -0.7> }
object { Leaf(0.6, srgb <0.20, 0.44, 0.14>) rotate <-14, 70, 8> translate <-1.15, 0.12, -1.1> }
object { Leaf(0.5, srgb <0.24, 0.48, 0.16>) rotate <-8, 10, -12> translate <-0.75, 0.14, -1.5> }
