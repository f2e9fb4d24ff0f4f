#pragma once

#include "Framework/Singleton.h"
#include "Framework/TimeCounter.h"

#include <map>
#include <memory>
#include <string>

namespace quorva {

/// The stopwatches by name. An unknown name is none to be started or asked: it has no effect,
/// and reads as not-a-number or 0.
class CounterManagerClass {
public:
    TimeCounter* addNewCounter(const std::string& name); ///< or the one of that name

    void start(const std::string& name);
    void end(const std::string& name);
    double getMean(const std::string& name) const;           ///< ms
    std::uint32_t getElapsed(const std::string& name) const; ///< ms

private:
    TimeCounter* find(const std::string& name) const;

    std::map<std::string, std::unique_ptr<TimeCounter>> counters;
};

using CounterManager = DefaultSingleton<CounterManagerClass>;

} // namespace quorva
