#include "Framework/TimeCounter.h"

#include "Framework/Timer.h"

#include <numeric>

namespace quorva {

TimeCounter::TimeCounter(unsigned short sampleLimit_) : sampleLimit(sampleLimit_) {}

void TimeCounter::start() {
    startTicks = Timer::Instance().getTicks();
    running = true;
    ++starts;
}

void TimeCounter::end() {
    running = false;
    elapsed = Timer::Instance().getTicks() - startTicks;
    if (elapsed > maximum)
        maximum = elapsed;
    else if (elapsed < minimum)
        minimum = elapsed;
    samples.push_back(elapsed);
    if (samples.size() > sampleLimit) samples.pop_front();
}

double TimeCounter::getMean() const {
    const double sum = std::accumulate(samples.begin(), samples.end(), 0.0);
    return sum / static_cast<double>(samples.size());
}

} // namespace quorva
