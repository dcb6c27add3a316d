// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A courtyard with arches and a pool.
#include "house.inc"

camera { location <1.2, 2.5, -13> right x * image_width / image_height look_at <0.6, 2.9, 0> angle 52 }
Sun(<-0.62, 0.62, -0.48>, srgb <1, 0.91, 0.78>, 1.6)
Sky(srgb <0.42, 0.66, 0.80>, srgb <0.92, 0.86, 0.78>)

#declare Bone = srgb <0.93, 0.86, 0.76>;
#declare Clay = srgb <0.83, 0.55, 0.42>;

difference {
  box { <-14, 0, 0>, <14, 5.4, 0.8> }
  #for (I, -3, 3) object { Arch(2.1, 4.1, 1.5) translate x * (I * 2.9) } #end
  Plaster(Bone)
}
// Behind the arches: a clay wall, and a taller house above it.
box { <-14, 0, 5>, <14, 7.2, 6> Plaster(Clay) }
difference {
  box { <2.2, 5.4, 2>, <12, 9.5, 9> }
  object { Arch(0.9, 2.0, 20) translate <4.2, 6.3, 0> }
  object { Arch(0.9, 2.0, 20) translate <6.6, 6.3, 0> }
  Plaster(Bone * 0.97)
}
// Court and pool.
difference {
  box { <-30, -1, -30>, <30, 0, 30> }
  box { <-4.6, -0.8, -9.5>, <2.2, 1, -1.6> }
  pigment { checker Bone * 0.93, Bone * 0.86 scale 0.9 } finish { ambient 0 diffuse 0.8 } normal { granite 0.05 }
}
box { <-4.6, -0.7, -9.5>, <2.2, -0.16, -1.6> Water(srgb <0.18, 0.52, 0.54>) }
object { Tree(3.4, 5) translate <4.6, 0, -2.4> }
object { Tree(2.6, 9) translate <-6.2, 0, -1.4> }
object { Stairs(8, 2.6, 0.34, 0.2) rotate y * 0 translate <5.2, 0, 1.6> Plaster(Bone * 0.95) }
sphere { <3.4, 0.42, -3.6>, 0.42 Plaster(Clay) }
