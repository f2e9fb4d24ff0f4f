#include "replay/FilmTime.h"

#include <algorithm>

namespace quorva::replay {

std::uint32_t FilmTime::advance(std::uint32_t ms) {
    const auto shown = [this] { return std::min<std::uint64_t>(still, longest_still); };
    const std::uint64_t before = shown();
    still += ms;
    return full ? ms : static_cast<std::uint32_t>(shown() - before);
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
