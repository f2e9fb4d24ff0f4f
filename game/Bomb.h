#pragma once

#include "game/PowerUp.h"

/// A power-up with a clock: it pulses every 50 ticks, three times in all, then vanishes.
class Bomb : public PowerUp {
public:
    void process() override;

    std::uint16_t ticks;      ///< until the next pulse
    std::uint16_t pulses = 0; ///< sent so far

protected:
    /// @param indicatorName of each pulse's entity
    Bomb(const quorva::math::Point& position, const char* colourName, const char* indicatorName);

private:
    const quorva::graphics::Colour* colour; ///< resource, not owned
    const char* indicatorName;
};
