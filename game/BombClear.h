#pragma once

#include "game/Bomb.h"

/// All triangles die.
class BombClear : public Bomb {
public:
    explicit BombClear(const quorva::math::Point& position);
};
