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
    void end(); ///< without a start it measures from the last one

    /// Of the durations kept; not-a-number if there are none.
    double getMean() const;

    std::uint32_t elapsed = 0; ///< the last duration
    std::uint32_t startTicks = 0;
    std::uint32_t starts = 0;
    std::uint32_t minimum = 999999999; ///< a duration that sets the maximum doesn't count here
    std::uint32_t maximum = 0;
    bool running = false;
    std::uint16_t sampleLimit;
    std::deque<unsigned long> samples; ///< oldest first
};

} // namespace quorva
