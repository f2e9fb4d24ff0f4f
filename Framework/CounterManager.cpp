#include "Framework/CounterManager.h"

#include <limits>

namespace quorva {

namespace {

constexpr unsigned short default_sample_limit = 100;

} // namespace

TimeCounter* CounterManagerClass::addNewCounter(const std::string& name) {
    std::unique_ptr<TimeCounter>& counter = counters[name];
    if (counter == nullptr) counter = std::make_unique<TimeCounter>(default_sample_limit);
    return counter.get();
}

TimeCounter* CounterManagerClass::find(const std::string& name) const {
    const auto found = counters.find(name);
    return found == counters.end() ? nullptr : found->second.get();
}

void CounterManagerClass::start(const std::string& name) {
    if (TimeCounter* const counter = find(name)) counter->start();
}

void CounterManagerClass::end(const std::string& name) {
    if (TimeCounter* const counter = find(name)) counter->end();
}

double CounterManagerClass::getMean(const std::string& name) const {
    const TimeCounter* const counter = find(name);
    return counter != nullptr ? counter->getMean() : std::numeric_limits<double>::quiet_NaN();
}

std::uint32_t CounterManagerClass::getElapsed(const std::string& name) const {
    const TimeCounter* const counter = find(name);
    return counter != nullptr ? counter->elapsed : 0;
}

} // namespace quorva
