#pragma once

#include <cstdint>
#include <deque>

namespace quorva {

/// A stopwatch for developers, in ms of game time, that keeps its last durations.
class TimeCounter {
public:
    /// @param sampleLimit durations to keep
    explicit TimeCounter(unsigned short sampleLimit);

    void start();
    void end(); ///< without a start before it, measures from the last start

    /// Of the durations kept, ms; not-a-number if there are none.
    double getMean() const;

    std::uint32_t elapsed = 0;    ///< the last duration
    std::uint32_t startTicks = 0; ///< of the last start
    std::uint32_t starts = 0;     ///< how many
    /// Of all durations but those that were a new maximum when they came: the first of all is one.
    std::uint32_t minimum = 999999999;
    std::uint32_t maximum = 0; ///< of all durations
    bool running = false;
    std::uint16_t sampleLimit;         ///< durations to keep
    std::deque<unsigned long> samples; ///< oldest first
};

} // namespace quorva
