#pragma once

#include "game/PowerUp.h"

/// One that ticks away: a pulse every 50 ticks, three in all, then it vanishes.
class Bomb : public PowerUp {
public:
    void process() override;

    std::uint16_t ticks; ///< until the next pulse
    std::uint16_t pulses = 0;

protected:
    Bomb(const quorva::math::Point& position, const char* colourName);

private:
    const quorva::graphics::Colour* colour; ///< resource, not owned
};
