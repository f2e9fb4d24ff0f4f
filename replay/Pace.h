#pragma once

#include <cstdint>
#include <string>

namespace quorva::replay {

/// Where watching is, and how it goes on. Space stops it and lets it go on; up and down, or right
/// and left, change the speed; right steps while it stands; Escape leaves.
class Pace {
public:
    Pace(double position_, double speed_) : position(position_), speed(speed_) {}

    void press(int symbol); ///< a key's of SDL
    void goOn(double ms);   ///< real time goes by
    bool takeStep();        ///< whether what comes next is to be shown, however long it stands
    /// Whether a frame of that time is still worth drawing. One that comes too late isn't.
    bool isInTime(double time) const;

    /// Such as "1:23 / 4:56  x2  stopped". @param time and length ms
    std::string inWords(std::uint32_t time, std::uint32_t length) const;

    double position; ///< ms after the game's first frame
    double speed;    ///< 1: as it was played
    bool standing = false, leaves = false;

    static constexpr double slowest = 0.125, fastest = 64.0; ///< times

private:
    bool stepping = false;
};

} // namespace quorva::replay
