#pragma once

#include "Framework/Singleton.h"
#include "Framework/TimeCounter.h"

#include <map>
#include <memory>
#include <string>

namespace quorva {

/// Stopwatches by name, for developers. Unknown names are ignored, and read as not-a-number or 0.
class CounterManagerClass {
public:
    /// The counter of that name, made if there is none. The manager owns it.
    TimeCounter* addNewCounter(const std::string& name);

    void start(const std::string& name);
    void end(const std::string& name);
    double getMean(const std::string& name) const;           ///< of the durations kept, ms
    std::uint32_t getElapsed(const std::string& name) const; ///< the last duration, ms

private:
    TimeCounter* find(const std::string& name) const;

    std::map<std::string, std::unique_ptr<TimeCounter>> counters;
};

using CounterManager = DefaultSingleton<CounterManagerClass>;

} // namespace quorva
