#pragma once

#include <cstdint>

namespace quorva::replay {

/// Where in a film a moment of a session is. Stretches in which nothing goes on, such as a pause
/// of a night, are shortened, and the sound fades out towards the cut.
class FilmTime {
public:
    /// @param full_ nothing is shortened
    explicit FilmTime(bool full_) : full(full_) {}

    /// @param ms since the last moment, in the session
    /// @return how much of it is in the film, ms
    std::uint32_t advance(std::uint32_t ms);

    /// Something has gone on at that moment.
    void enliven() { still = 0; }

    /// How loud it is `ms` after the last moment, from 0 to 1.
    double volume(std::uint32_t ms) const;

    /// The volume of the next piece of sound, which comes back to what it should be step by step.
    /// @param wanted 0 to 1
    double nextVolume(double wanted);

    static constexpr double fade_in = 0.1; ///< at most, from piece to piece

    static constexpr std::uint32_t longest_still = 5000; ///< ms
    static constexpr std::uint32_t fade = 1000;          ///< ms, the last of these

private:
    bool full;
    double lastVolume = 1.0;
    std::uint64_t still = 0; ///< ms in the session, up to the last moment
};

} // namespace quorva::replay
