#pragma once

#include "Framework/math/Point.h"

namespace gallery {

// Fields set up by hand, for moments that explain. What comes of them is the game's own play. To
// be called in a running game, before the first triangles have arrived.

extern const quorva::math::Point fence_corner, fence_opposite; ///< the cube comes to the first
extern const quorva::math::Point power_up_place, second_corner, second_opposite; ///< for the film
extern const quorva::math::Point death_place; ///< where the cube waits for it

void stageFence();    ///< three triangles between the corners, and others for later
void stageDeath();    ///< triangles about the cube, one close to it
void stagePowerUps(); ///< one of each thing that can be taken, and two triangles on their way

} // namespace gallery
