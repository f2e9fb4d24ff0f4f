#pragma once

#include "game/PowerUpWithRays.h"

/// Guns cool down faster from now on.
class PupCooldown : public PowerUpWithRays {
public:
    explicit PupCooldown(const quorva::math::Point& position);
};
