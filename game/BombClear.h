#pragma once

#include "game/Bomb.h"

/// Kills all triangles.
class BombClear : public Bomb {
public:
    explicit BombClear(const quorva::math::Point& position);
};
