#include "platform/fmodex/Downmix.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace platform::fmodex {

namespace {

/// Speakers by their number: left, right, the middle, and the low frequencies.
const char* const wav_orders[] = {"M",     "LR",     "LRM",     "LRLR",
                                  "LRMLR", "LRM_LR", "LRM_MLR", "LRM_LRLR"};
const char* const vorbis_orders[] = {"M",     "LR",     "LMR",     "LRLR",
                                     "LMRLR", "LMRLR_", "LMRLRM_", "LMRLRLR_"};

std::string speakersOf(std::size_t channels, Downmix::Order order) {
    if (channels > std::size(wav_orders)) return std::string(channels, 'M');
    return (order == Downmix::Order::vorbis ? vorbis_orders : wav_orders)[channels - 1];
}

} // namespace

Downmix::Downmix(int channels, Order order) {
    const float middle = std::sqrt(0.5F); // as loud from two sides as from one
    std::array<float, 2> sum{};
    for (const char speaker : speakersOf(static_cast<std::size_t>(channels), order)) {
        const float both = speaker == 'M' ? middle : 0;
        gains.push_back({speaker == 'L' ? 1 : both, speaker == 'R' ? 1 : both});
        sum[0] += gains.back()[0];
        sum[1] += gains.back()[1];
    }
    const float loudest = std::max(sum[0], sum[1]);
    for (auto& gain : gains)
        gain = {gain[0] / loudest, gain[1] / loudest};
}

std::array<float, 2> Downmix::operator()(const float* frame) const {
    float left = 0, right = 0;
    for (const auto& gain : gains) {
        left += *frame * gain[0];
        right += *frame * gain[1];
        ++frame;
    }
    return {left, right};
}

} // namespace platform::fmodex
