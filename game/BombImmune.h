#pragma once

#include "game/Bomb.h"

/// A spell of invulnerability.
class BombImmune : public Bomb {
public:
    explicit BombImmune(const quorva::math::Point& position);
};
