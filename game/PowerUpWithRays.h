#pragma once

#include "game/PowerUp.h"

class PowerUpLines;

/// A power-up that lies until it is taken, over a burst of rays.
class PowerUpWithRays : public PowerUp {
public:
    ~PowerUpWithRays() override; ///< lets the burst fade, if that still exists
    void process() override {}

    PowerUpLines* lines = nullptr; ///< the engine owns it, and may delete it first

protected:
    PowerUpWithRays(const quorva::math::Point& position, const char* colourName, bool reverse);

private:
    unsigned long linesId = 0; ///< tells whether the engine still has `lines`
};
