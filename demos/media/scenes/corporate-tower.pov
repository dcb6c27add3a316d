// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Two glass towers against the evening sky.
#include "house.inc"

camera { location <-9, 1.8, -34> right x * image_width / image_height look_at <1.5, 18.5, 0> angle 44 }
light_source { <-60, 26, -50> srgb <1, 0.72, 0.48> * 1.1 parallel point_at 0 }
sky_sphere { pigment { gradient y turbulence 0.03 color_map { [0 srgb <0.98, 0.72, 0.52>] [0.18 srgb <0.90, 0.70, 0.64>] [0.45 srgb <0.48, 0.58, 0.72>] [1 srgb <0.16, 0.28, 0.48>] } } emission 0.85 }

#macro Tower(Floors, Wide, Deep, Seed)
  union {
    #local S = seed(Seed);
    box { <0.05, 0, 0.05>, <Wide - 0.05, Floors, Deep - 0.05>
      pigment { srgb <0.10, 0.16, 0.22> } finish { ambient 0 diffuse 0.15 specular 0.6 roughness 0.005 reflection { 0.25, 0.85 fresnel on } } interior { ior 1.6 } }
    #for (F, 0, Floors)
      box { <0, F - 0.09, 0>, <Wide, F + 0.09, Deep> pigment { srgb <0.86, 0.82, 0.76> } finish { ambient 0 diffuse 0.75 } }
      #for (W, 0, Wide * 1.25 - 1)
        #if (rand(S) < 0.2 & F < Floors) box { <W * 0.8 + 0.06, F + 0.12, 0.02>, <W * 0.8 + 0.74, F + 0.88, 0.045> pigment { srgb <1, 0.80, 0.52> } finish { ambient 0 diffuse 0.2 emission 0.5 + rand(S) * 0.45 } } #end
      #end
    #end
    #for (W, 0, Wide * 1.25) box { <W * 0.8 - 0.035, 0, -0.12>, <W * 0.8 + 0.035, Floors, 0.05> pigment { srgb <0.80, 0.74, 0.66> } finish { ambient 0 diffuse 0.75 } } #end
    #for (W, 0, Deep * 1.25) box { <-0.12, 0, W * 0.8 - 0.035>, <0.05, Floors, W * 0.8 + 0.035> pigment { srgb <0.80, 0.74, 0.66> } finish { ambient 0 diffuse 0.75 } } #end
  }
#end

object { Tower(34, 8, 8, 4) rotate y * -22 translate <-4, 0, 0> }
object { Tower(24, 8, 7.2, 9) rotate y * 14 translate <7.5, 0, 6> }
object { Tower(15, 12, 8, 12) rotate y * -6 translate <-20, 0, 16> }
plane { y, 0 pigment { srgb <0.5, 0.45, 0.42> } }
