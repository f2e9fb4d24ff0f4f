#pragma once

#include <array>
#include <vector>

namespace platform::fmodex {

/// Mixes any number of channels down to two, so that full scale stays full scale. Speakers in the
/// middle are heard on both sides, the one for low frequencies not at all; one or two channels
/// stay as they are.
class Downmix {
public:
    enum class Order { wav, vorbis }; ///< in which a format puts its speakers

    /// @param channels 1 or more; beyond eight, each is heard on both sides
    Downmix(int channels, Order order);

    /// @param frame a sample of each channel; @return left and right
    std::array<float, 2> operator()(const float* frame) const;

private:
    std::vector<std::array<float, 2>> gains; ///< of each channel, left and right
};

} // namespace platform::fmodex
