#pragma once

#include "game/PowerUp.h"

class PowerUpLines;

/// One that lies until it is taken, over a burst of rays.
class PowerUpWithRays : public PowerUp {
public:
    ~PowerUpWithRays() override; ///< tells the burst, if it is still there
    void process() override {}

    PowerUpLines* lines = nullptr; ///< the engine owns it, and may delete it first

protected:
    PowerUpWithRays(const quorva::math::Point& position, const char* colourName, bool reverse);

private:
    unsigned long linesId = 0; ///< under which the engine knows `lines`
};
