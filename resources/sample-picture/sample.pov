// SPDX-License-Identifier: MIT
// A quiet harbour in the evening: a stone jetty, a red boat and a yellow buoy on still water, a boathouse with a blue
// door, and hills in the haze. `render` makes the picture of it. Units are metres; y is up, the camera looks to +z.
#version 3.7;

global_settings {
    assumed_gamma 1
    max_trace_level 6
}

#declare SunDirection = vnormalize(<0.80, 0.30, -0.30>);

#include "noise.inc"
#include "sky.inc"
#include "water.inc"
#include "stone.inc"
#include "jetty.inc"
#include "boat.inc"
#include "crate.inc"
#include "plants.inc"
#include "boathouse.inc"
#include "shore.inc"
#include "branch.inc"

camera {
    location <0, 1.95, 0>
    right 1.5 * x
    up y
    direction z
    angle 56
    look_at <0, 1.5, 12>
}

// Grass grows in the joints of the jetty.
#macro TuftsOnJetty()
    #for (Number, 1, 46)
        object {
            GrassShapes[mod(Number, 2)]
            texture { LeafTexture(<Between(0.14, 0.30), Between(0.26, 0.36), Between(0.04, 0.08)>) }
            scale <0.075, Between(0.06, 0.13), 0.075>
            rotate Between(0, 360) * y
            translate <-0.70 - 0.48 * floor(1.999 * rand(Chance)) + Between(-0.015, 0.015), JettyTop - 0.03,
                Between(3, 16)>
        }
    #end
#end

// The jetty on the left, with what lies on it.
#declare Chance = seed(100);
union {
    object { Jetty }
    object { Bollard translate <-0.36, JettyTop, 8.2> }
    object { Coil(4) translate <-1.05, JettyTop, 6.6> }
    object { Crate rotate -24 * y translate <-0.42, JettyTop + 0.015, 4.25> }
    TuftsOnJetty()
    object { Pile(1.75) translate <0.24, 0, 9.6> }
    object { Pile(1.5) translate <0.22, 0, 15.5> }
    #for (Number, 1, 45)
        FallenLeaf(<Between(-2.3, 0.0), JettyTop + 0.018, Between(3, 14)>)
    #end
    rotate 8 * y
    translate <-1.95, 0, 0.5>
}

// The boat, moored to the bollard and to a pile; the buoy.
#declare Chance = seed(200);
object { Boat rotate <0, 38, 1.5> translate <0.85, 0, 8.4> }
HangingRope(<-0.52, 0.40, 6.85>, <-1.08, 0.90, 8.62>, 0.16)
HangingRope(<2.26, 0.50, 10.21>, <-0.28, 0.95, 9.98>, 0.14)
object { Buoy rotate <7, 30, -9> translate <4.35, 0, 14> }
#for (Number, 1, 30)
    FallenLeaf(<Between(-0.8, 3.4), 0.008, Between(5.5, 8)>)
#end

// The branch at the top left.
#declare Chance = seed(305);
union {
    Twig(<-2.4, 3.05, 3.6>, <1.0, 0.12, 0.0>, 1.2, 0.013, 2)
    Twig(<-2.9, 3.55, 4.3>, <1, 0.12, 0.1>, 2.2, 0.016, 2)
}

// Reeds and two stones at the bottom right.
#declare Chance = seed(400);
#for (Number, 1, 26)
    object {
        ReedShapes[mod(Number, 3)]
        texture { ReedTexture }
        scale Between(0.95, 1.5)
        rotate Between(0, 360) * y
        translate <3.85 + Between(-1.0, 0.9), 0, 6.6 + Between(-1.0, 1.2)>
    }
    #if (mod(Number, 3) = 0)
        object {
            Cattail
            scale Between(1.1, 1.5)
            rotate <Between(-7, 7), 0, Between(-9, 5)>
            translate <3.85 + Between(-0.9, 0.8), 0, 6.6 + Between(-0.9, 1.1)>
        }
    #end
#end
object {
    Boulder(5.5, 80, 120, 16)
    StoneTexture(0.75)
    scale <0.5, 0.27, 0.36>
    translate <3.0, -0.02, 6.3>
    texture { WetTexture translate -0.08 * y }
}
object {
    Boulder(25.5, 60, 90, 16)
    StoneTexture(0.65)
    scale <0.30, 0.20, 0.26>
    translate <2.35, -0.05, 5.75>
    texture { WetTexture translate -0.08 * y }
}
