// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A pot grows on the wheel: lump, cylinder, vase, while `clock` goes from 0 to 1.
#declare Film = 1;
#include "studio.inc"

camera {
  location <0, 5.2, -15>
  right x * image_width / image_height
  look_at <0, 1.9, 0>
  angle 26
}

StudioLight(<-9, 9, -7>, srgb <1, 0.92, 0.80>, 1.5, 4)
light_source { <10, 6, -6> srgb <0.70, 0.82, 1> * 0.35 shadowless }
light_source { <0, 4, -16> srgb <1, 0.9, 0.8> * 0.16 shadowless }
Backdrop(srgb <0.66, 0.60, 0.53>)

// Radius and height of seven rings, from the foot to the rim.
#declare Shapes = array[3][7][2] {
  { {1.30, 0}, {1.42, 0.22}, {1.38, 0.5}, {1.22, 0.78}, {0.95, 0.98}, {0.58, 1.10}, {0.22, 1.14} },
  { {1.02, 0}, {1.05, 0.45}, {1.03, 0.95}, {1.00, 1.45}, {0.98, 1.95}, {0.97, 2.35}, {0.98, 2.62} },
  { {0.80, 0}, {1.30, 0.6}, {1.48, 1.25}, {1.25, 1.95}, {0.72, 2.6}, {0.55, 3.05}, {0.82, 3.42} }
}
#declare Phase = clock * 2;
#declare From = min(floor(Phase), 1);
#declare Step = Phase - From;
#declare Blend = Step * Step * Step * (Step * (Step * 6 - 15) + 10);
#declare Next = From + 1;
#macro Ring(I) <Shapes[From][I][0] * (1 - Blend) + Shapes[Next][I][0] * Blend, Shapes[From][I][1] * (1 - Blend) + Shapes[Next][I][1] * Blend> #end
#declare Turn = 360 * 2 * clock;

union {
  lathe {
    cubic_spline 18,
    Ring(0) - <0.05, 0.3>
    #for (I, 0, 6) , Ring(I) #end
    , Ring(6) + <-0.10, 0.03>
    #for (I, 6, 1, -1) , <max(Ring(I).u - 0.17, 0.03), Ring(I).v - 0.02> #end
    , <0.002, Ring(1).v * 0.6>, <0.001, Ring(1).v * 0.6>, <0, Ring(1).v * 0.8>
    sturm
  }
  pigment { granite scale 0.5 color_map { [0 srgb <0.68, 0.44, 0.33>] [1 srgb <0.76, 0.52, 0.40>] } }
  normal {
    average normal_map {
      [1 gradient y 0.35 sine_wave scale 0.085]
      [1 spiral1 2 0.25 sine_wave rotate x * 90 scale 0.3]
    }
  }
  finish { ambient 0 diffuse 0.7 specular 0.45 roughness 0.025 }
  rotate y * Turn
  translate y * 0.62
}

// Wheel head with a trace of slip, and the tray.
union {
  cylinder { <0, 0.44, 0>, <0, 0.62, 0>, 2.5 }
  pigment { radial frequency 1 turbulence 0.5 color_map { [0 srgb <0.62, 0.60, 0.56>] [0.5 srgb <0.58, 0.48, 0.41>] [1 srgb <0.62, 0.60, 0.56>] } }
  normal { wood 0.12 rotate x * 90 scale 0.2 }
  finish { ambient 0 diffuse 0.6 specular 0.4 roughness 0.04 }
  rotate y * Turn
}
lathe {
  cubic_spline 9, <2.6, -0.2>, <2.7, 0>, <3.5, 0.02>, <3.75, 0.2>, <3.8, 0.72>, <3.7, 0.72>, <3.6, 0.28>, <2.7, 0.16>, <2.5, 0.1>
  pigment { srgb <0.82, 0.78, 0.70> } finish { ambient 0 diffuse 0.72 specular 0.2 roughness 0.03 }
}
