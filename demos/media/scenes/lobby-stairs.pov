// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Stairs to the roof.
#include "house.inc"

camera { location <-7.5, 3.6, -11> right x * image_width / image_height look_at <0.4, 3.1, 1.2> angle 44 }
Sun(<-0.35, 0.62, -0.7>, srgb <1, 0.93, 0.82>, 1.45)
Sky(srgb <0.36, 0.60, 0.78>, srgb <0.74, 0.84, 0.86>)

#declare White = srgb <0.95, 0.92, 0.87>;
#declare Clay = srgb <0.80, 0.47, 0.35>;
#declare Sage = srgb <0.56, 0.64, 0.55>;

plane { y, 0 Plaster(srgb <0.84, 0.74, 0.62>) }
// Two flights along the wall.
object { Stairs(15, 1.9, 0.3, 0.19) rotate y * 90 translate <-3.6, 0, 1.4> Plaster(White) }
box { <0.9, 0, -0.5>, <3.6, 2.85, 4> Plaster(White) }
object { Stairs(13, 1.9, 0.3, 0.19) rotate y * -90 translate <3.4, 2.85, 2.2> Plaster(White) }
difference {
  box { <-9, 0, 4>, <6, 5.3, 4.6> }
  object { Arch(1.5, 3.1, 2) translate <-5.6, 0, 4> }
  Plaster(Clay)
}
difference {
  box { <3.6, 0, -1.8>, <9, 6.6, 6> }
  object { Arch(1.1, 2.2, 1) rotate y * 90 translate <3.6, 3.4, 0.2> }
  box { <4.2, 0.5, -1>, <8, 6.2, 5.2> }
  Plaster(Sage)
}
difference {
  box { <-1.2, 5.0, 4.6>, <9, 9.4, 9> }
  object { Arch(1.4, 2.7, 20) translate <1.0, 5.3, 0> }
  Plaster(White)
}
object { Tree(3.0, 21) translate <-4.9, 0, -1.5> }
object { Tree(2.0, 4) scale 0.9 translate <1.5, 2.85, 0.2> }
sphere { <-2.3, 0.5, -1.2>, 0.5 Plaster(Clay) }
