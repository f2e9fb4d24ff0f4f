#include "game/PupCooldown.h"

using namespace quorva;

PupCooldown::PupCooldown(const math::Point& position)
    : PowerUpWithRays(position, "PUP Cooldown Colour", true) {}
