// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Pumpkin ravioli with sage butter on a terracotta table, at the right of a long band; room for words at the left.
#include "studio.inc"
#include "props.inc"
#include "kitchen.inc"

#declare Terra = srgb <0.44, 0.16, 0.09>;

camera { location <-5.2, 17, -19> right x * image_width / image_height look_at <-5.2, 0.3, 0> angle 33 }
StudioLight(<-12, 10, 3>, srgb <1, 0.92, 0.80>, 2.2, 3)
light_source { <-6, 8, -12> srgb <1, 0.95, 0.9> * 0.5 shadowless }
plane { y, 0 pigment { granite scale 3 color_map { [0 Terra * 0.9] [1 Terra * 1.08] } } normal { granite 0.06 scale 0.8 } finish { ambient 0 diffuse 0.8 } }

// A square of dough with a crimped edge and a filling.
#macro Raviolo(Tint)
  union {
    superellipsoid { <0.25, 0.4> scale <0.62, 0.055, 0.62> }
    superellipsoid { <0.75, 0.75> scale <0.46, 0.24, 0.46> translate y * 0.04 }
    #for (I, -6, 6)
      #for (Side, -1, 1, 2)
        cylinder { <I * 0.097, 0, Side * 0.46>, <I * 0.097, 0, Side * 0.66>, 0.055 scale <1, 1.05, 1> }
        cylinder { <Side * 0.46, 0, I * 0.097>, <Side * 0.66, 0, I * 0.097>, 0.055 scale <1, 1.05, 1> }
      #end
    #end
    pigment { granite scale 0.7 color_map { [0 Tint * 0.92] [0.6 Tint] [1 Tint * 1.03] } }
    normal { bumps 0.08 scale 0.12 }
    finish { ambient 0 diffuse 0.78 specular 0.5 roughness 0.02 reflection { 0.0, 0.08 fresnel on } }
    interior { ior 1.4 }
  }
#end

#declare Dough = srgb <0.95, 0.74, 0.36>;
union {
  object { Plate(2.9, srgb <0.95, 0.92, 0.86>) scale <1, 1.2, 1> }
  // Butter in the well of the plate.
  cylinder { <0, 0.1, 0>, <0, 0.115, 0>, 1.75 pigment { srgb <0.90, 0.66, 0.22> } finish { ambient 0 diffuse 0.6 specular 0.6 roughness 0.01 reflection { 0.02, 0.3 fresnel on } } interior { ior 1.4 } }
  #declare S = seed(21);
  #for (I, 0, 6)
    object { Raviolo(Dough * (0.94 + rand(S) * 0.1)) rotate <rand(S) * 10 - 5, I * 47 + rand(S) * 24, rand(S) * 10 - 5> translate <cos(I * 0.9) * 1.15, 0.22 + rand(S) * 0.05, sin(I * 0.9) * 1.15> }
  #end
  #for (I, 0, 2)
    object { Raviolo(Dough * (0.97 + rand(S) * 0.08)) rotate <rand(S) * 16 - 8, I * 75 + 20, rand(S) * 16 - 8> translate <cos(I * 2.1 + 0.6) * 0.52, 0.58 + I * 0.05, sin(I * 2.1 + 0.6) * 0.52> }
  #end
  // Sage and crumbs of pumpkin.
  #for (I, 0, 4)
    object { Leaf(0.42 + rand(S) * 0.12, srgb <0.36, 0.47, 0.27>) rotate <rand(S) * 30 - 25, I * 76, rand(S) * 24 - 12> translate <cos(I * 1.3 + 0.9) * (0.4 + rand(S) * 0.7), 0.86 - 0.04 * I, sin(I * 1.3 + 0.9) * (0.4 + rand(S) * 0.7)> }
  #end
  #for (I, 0, 11)
    box { -0.07, 0.07 rotate <rand(S) * 90, rand(S) * 90, 0> translate <cos(I * 0.55) * (1.2 + rand(S) * 0.8), 0.2 + (rand(S) > 0.5) * 0.2, sin(I * 0.55) * (1.2 + rand(S) * 0.8)> pigment { srgb <0.93, 0.48, 0.10> } finish { ambient 0 diffuse 0.8 specular 0.3 roughness 0.03 } }
  #end
  translate <-0.7, 0, 0>
}
object { Leaf(0.6, srgb <0.36, 0.47, 0.27>) rotate <-8, 200, 8> translate <-4.4, 0.12, -0.3> }
object { Leaf(0.5, srgb <0.40, 0.50, 0.30>) rotate <-8, 150, -6> translate <-4.0, 0.12, 0.25> }
