// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A quiet corner with a bench, in afternoon light from a window.
#include "house.inc"

camera { location <0, 1.9, -9.2> right x * image_width / image_height look_at <0, 2.0, 0> angle 42 }
Sun(<-0.78, 0.52, -0.42>, srgb <1, 0.84, 0.62>, 2.6)
light_source { <3, 3, -9> srgb <0.75, 0.85, 1> * 0.4 shadowless }
sky_sphere { pigment { srgb <0.7, 0.8, 0.9> } emission 0.7 }

#declare Green = srgb <0.27, 0.40, 0.36>;

plane { y, 0 pigment { gradient x triangle_wave scale 0.42 color_map { [0 srgb <0.62, 0.45, 0.30>] [0.96 srgb <0.68, 0.50, 0.34>] [0.97 srgb <0.34, 0.24, 0.16>] [1 srgb <0.34, 0.24, 0.16>] } } finish { ambient 0 diffuse 0.75 reflection { 0.01, 0.12 fresnel on } } interior { ior 1.4 } }
box { <-9, 0, 1.2>, <9, 7, 1.6> Plaster(Green) }
// The window wall at the left: four panes.
difference {
  box { <-5.2, 0, -12>, <-5, 7, 1.4> }
  #for (I, 0, 1) #for (K, 0, 1) box { <-6, 0.9 + K * 1.75, -3.9 + I * 1.3>, <-4, 2.5 + K * 1.75, -2.75 + I * 1.3> } #end #end
  Plaster(Green)
}
// Bench, cushion, lamp, plant, picture.
union {
  box { <-1.9, 0.42, 0>, <1.5, 0.5, 0.95> }
  #for (I, 0, 1) box { <-1.8 + I * 3.1, 0, 0.08>, <-1.7 + I * 3.1, 0.42, 0.88> } #end
  pigment { wood turbulence 0.06 scale <2, 0.1, 0.1> rotate y * 90 color_map { [0 srgb <0.70, 0.50, 0.32>] [1 srgb <0.58, 0.40, 0.25>] } } finish { ambient 0 diffuse 0.8 }
}
superellipsoid { <0.55, 0.35> scale <0.46, 0.42, 0.15> rotate x * 14 translate <-1.2, 0.9, 0.8> Plaster(srgb <0.86, 0.58, 0.38>) }
superellipsoid { <0.55, 0.35> scale <0.40, 0.36, 0.14> rotate <12, 12, 0> translate <-0.45, 0.85, 0.66> Plaster(srgb <0.90, 0.84, 0.72>) }
object { Tree(3.0, 33) translate <2.7, 0, 0.1> }
union {
  difference { box { <-0.9, 2.1, 1.1>, <0.75, 3.9, 1.2> } box { <-0.84, 2.16, 1>, <0.69, 3.84, 1.13> } pigment { srgb <0.78, 0.62, 0.38> } finish { ambient 0 diffuse 0.6 specular 0.3 roughness 0.04 } }
  box { <-0.84, 2.16, 1.125>, <0.69, 3.84, 1.14> pigment { srgb <0.93, 0.89, 0.80> } finish { ambient 0 diffuse 0.8 } }
  cylinder { <-0.2, 3.1, 1.11>, <-0.2, 3.1, 1.13>, 0.42 pigment { srgb <0.82, 0.44, 0.28> } finish { ambient 0 diffuse 0.8 } }
  difference { cylinder { <0.1, 2.62, 1.10>, <0.1, 2.62, 1.13>, 0.4 } box { <-1, 2.62, 1>, <1, 4, 1.3> } pigment { srgb <0.24, 0.36, 0.33> } finish { ambient 0 diffuse 0.8 } }
}
cylinder { <-3.5, 0, 0.5>, <-3.5, 3.0, 0.5>, 0.03 pigment { rgb 0.02 } finish { specular 0.3 } }
cone { <-3.5, 2.75, 0.5>, 0.52, <-3.5, 3.25, 0.5>, 0.3 open pigment { srgb <0.95, 0.90, 0.80> } finish { ambient 0 diffuse 0.8 } }
cylinder { <-3.5, 0, 0.5>, <-3.5, 0.04, 0.5>, 0.34 pigment { rgb 0.03 } }
