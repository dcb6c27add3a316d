// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// A stage for the gift card that is keyed in: the card itself is not seen here, only its shadow.
#include "studio.inc"
#include "props.inc"
#include "gifts.inc"

camera { location <0, 4.6, -21> right x * image_width / image_height look_at <0, 4.1, 0> angle 22 }

StudioLight(<-7, 17, -9>, srgb <1, 0.92, 0.84>, 1.35, 3)
light_source { <12, 6, -10> srgb <1, 0.85, 0.9> * 0.22 shadowless }
Backdrop(srgb <0.44, 0.10, 0.15>)

#declare Stone = srgb <0.52, 0.14, 0.19>;
cylinder { <0, 0, 1.4>, <0, 0.7, 1.4>, 3.7 Clay(Stone) }
cylinder { <0, 0.7, 1.6>, <0, 1.3, 1.6>, 2.7 Clay(Stone * 1.06) }
difference { torus { 3.3, 0.16 rotate x * 90 translate <0, 4.1, 3.6> } plane { y, -1 } texture { Gold } }
object { GiftCard(srgb 0.9, Ribbon) scale 1.28 translate <0, 4.1, 1.2> no_image }
object { Bauble(0.5, srgb <0.86, 0.66, 0.40>) translate <2.3, 0, -1.6> }
object { Bauble(0.36, srgb <0.94, 0.88, 0.80>) translate <1.35, 0, -2.2> }
object { Bauble(0.42, srgb <0.72, 0.16, 0.18>) translate <-2.5, 0, -1.4> }
