#include "game/PupLine.h"

using namespace quorva;

PupLine::PupLine(const math::Point& position)
    : PowerUpWithRays(position, "PUP Line Colour", false) {}
