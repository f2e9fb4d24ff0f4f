#pragma once

#include "game/PowerUpWithRays.h"

/// Longer-lived lines.
class PupLine : public PowerUpWithRays {
public:
    explicit PupLine(const quorva::math::Point& position);
};
