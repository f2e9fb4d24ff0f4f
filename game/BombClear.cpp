#include "game/BombClear.h"

using namespace quorva;

BombClear::BombClear(const math::Point& position)
    : Bomb(position, "Clear Bomb Line Colour", "Clear Bomb Indicator") {}
