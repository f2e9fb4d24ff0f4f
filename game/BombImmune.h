#pragma once

#include "game/Bomb.h"

/// Makes the player invulnerable for a while.
class BombImmune : public Bomb {
public:
    explicit BombImmune(const quorva::math::Point& position);
};
