#include "replay/FilmTime.h"

#include <algorithm>

namespace quorva::replay {

std::uint32_t FilmTime::advance(std::uint32_t ms) {
    const std::uint64_t before = still;
    still += ms;
    if (full || still <= longest_still) return ms;
    return before < longest_still ? static_cast<std::uint32_t>(longest_still - before) : 0;
}

double FilmTime::volume(std::uint32_t ms) const {
    if (full) return 1.0;
    const double left = static_cast<double>(longest_still) - static_cast<double>(still + ms);
    return std::clamp(left / fade, 0.0, 1.0);
}

double FilmTime::nextVolume(double wanted) {
    return lastVolume = std::min(wanted, lastVolume + fade_in);
}

} // namespace quorva::replay
