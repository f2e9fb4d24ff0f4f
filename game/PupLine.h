#pragma once

#include "game/PowerUpWithRays.h"

/// Lines stand longer from now on.
class PupLine : public PowerUpWithRays {
public:
    explicit PupLine(const quorva::math::Point& position);
};
