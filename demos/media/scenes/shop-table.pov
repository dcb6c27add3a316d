// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A laid table from above, room for words at the left.
#include "studio.inc"
#include "props.inc"

camera {
  location <0, 22, -0.01>
  right x * image_width / image_height
  sky z
  look_at <0, 0, 0>
  angle 41
}

StudioLight(<-11, 16, 8>, srgb <1, 0.95, 0.87>, 1.1, 6)
light_source { <10, 14, -8> srgb <0.8, 0.86, 1> * 0.3 shadowless }
plane { y, 0 pigment { srgb <0.20, 0.29, 0.24> } normal { granite 0.08 scale 0.3 } finish { ambient 0 diffuse 0.8 } }

#declare Cream = srgb <0.95, 0.91, 0.84>;
#declare Terra = srgb <0.76, 0.42, 0.29>;
#declare Ink = srgb <0.20, 0.24, 0.30>;
#declare Sand = srgb <0.86, 0.76, 0.62>;

#macro Fork() union {
  cylinder { <0, 0.1, -1.7>, <0, 0.1, 0.5>, 0.09 }
  #for (I, -1, 1) cylinder { <I * 0.13, 0.1, 0.75>, <I * 0.13, 0.1, 1.6>, 0.045 } #end
  box { <-0.17, 0.05, 0.5>, <0.17, 0.14, 0.8> }
  pigment { srgb <0.80, 0.66, 0.42> } finish { ambient 0 diffuse 0.35 specular 0.5 roughness 0.02 metallic reflection { 0.25 metallic } } } #end
#macro Knife() union {
  cylinder { <0, 0.1, -1.7>, <0, 0.1, 0>, 0.09 }
  sphere { 0, 1 scale <0.15, 0.05, 0.95> translate <0, 0.1, 0.85> }
  pigment { srgb <0.80, 0.66, 0.42> } finish { ambient 0 diffuse 0.35 specular 0.5 roughness 0.02 metallic reflection { 0.25 metallic } } } #end

#macro Place(Big, Small) union {
  object { Plate(2.2, Big) scale 1.15 }
  object { Plate(1.5, Small) translate y * 0.2 }
  object { Fork() translate <-3.1, 0, 0> }
  object { Knife() translate <3.1, 0, 0> } } #end

object { Place(Cream, Terra) translate <1.7, 0, -1.5> }
object { Place(Cream, Ink) rotate y * 180 translate <9.2, 0, 1.9> }
object { Bowl(Ink) scale 1.7 translate <4.6, 0, 2.9> }
#declare S = seed(4);
#for (I, 0, 6)
  sphere { <4.6 + cos(I * 1.05) * 0.75 * (I > 0), 0.95 + (I = 0) * 0.35, 2.9 + sin(I * 1.05) * 0.75 * (I > 0)>, 0.52
    pigment { granite scale 0.9 color_map { [0 srgb <0.86, 0.40, 0.12>] [1 srgb <0.93, 0.54, 0.18>] } } normal { bumps 0.2 scale 0.04 } finish { ambient 0 diffuse 0.75 specular 0.12 roughness 0.05 } }
#end
union { object { Saucer(Sand) } object { Cup(Sand, Cream) translate y * 0.08 } rotate y * 40 translate <6.6, 0, -2.7> }
object { Branch(5.2, 1.2, srgb <0.44, 0.56, 0.42>, 7) rotate x * 90 rotate y * -100 translate <2.2, 0.25, 3.6> }
