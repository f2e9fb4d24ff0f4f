#include "game/BombImmune.h"

using namespace quorva;

BombImmune::BombImmune(const math::Point& position)
    : Bomb(position, "Immune Bomb Line Colour", "Immune Bomb Indicator") {}
