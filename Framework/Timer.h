#pragma once

#include "Framework/Singleton.h"

#include <cstdint>

namespace quorva {

/// The game's only clock, in milliseconds of SDL_GetTicks: the beat of the ticks, and game time
/// with the finished pauses taken out.
class TimerClass {
public:
    TimerClass();

    /// Game time starts at 0 again. A running pause goes on.
    void reset();

    std::uint16_t getProcessRate() const { return processRate; } ///< ms from tick to tick
    std::uint32_t getTicks() const; ///< game time, ms; a pause counts until it has ended

    bool isItTimeToProcess() const;

    /// ms until the next tick is due, cut to 16 bits: an overdue tick wraps to a large value.
    std::uint16_t getTimeUntilNextProcess() const;

    void calculateLastBlip();      ///< a tick has just run
    void correct(unsigned long t); ///< takes `t` ms out of the game time

    /// A second call before unPauseGame forgets the pause so far: game time then keeps it.
    void pauseGame();
    void
    unPauseGame(); ///< safe when not paused, but adds the time since the last pause to `correction`

    bool paused = false;          ///< no tick runs while this is set
    std::uint32_t pauseStart = 0; ///< clock at the last pauseGame
    std::uint16_t processRate;    ///< ms
    std::uint32_t startTicks;     ///< clock at construction or at the last reset
    std::uint32_t lastBlip;       ///< clock at the end of the last tick
    std::uint32_t blips = 0;      ///< ticks since reset
    std::uint32_t correction = 0; ///< ms to take out of game time
};

using Timer = EternalSingleton<TimerClass>;

} // namespace quorva
