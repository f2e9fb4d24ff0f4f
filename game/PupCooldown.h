#pragma once

#include "game/PowerUpWithRays.h"

/// A shorter cooldown.
class PupCooldown : public PowerUpWithRays {
public:
    explicit PupCooldown(const quorva::math::Point& position);
};
