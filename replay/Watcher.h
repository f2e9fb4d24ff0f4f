#pragma once

#include "replay/WindowPlayback.h"

#include <cstdint>
#include <string>

namespace quorva::replay {

/// Shows a game at the speed that it was played at, or another. Space stops it and lets it go on;
/// up and down, or right and left, change the speed; right steps while it stands; Escape leaves.
class Watcher : public WindowPlayback {
public:
    struct Times {
        std::uint32_t start;  ///< ms, the game's clock at its first frame
        std::uint32_t length; ///< ms
        std::uint32_t from;   ///< ms after the start, where watching begins
        double speed;         ///< 1: as it was played
    };

    Watcher(Script& script_, const boost::filesystem::path& songs_, const Times& times_);

    bool draws() override;
    bool sounds() override { return draws(); }

    static constexpr double slowest = 0.125, fastest = 64.0; ///< times

protected:
    void moveOn() override;
    void show() override;
    void passIdly() override;

private:
    std::uint32_t place() const { return now() - times.start; }
    void waitFor(double ms);
    void takeKeys();
    void press(int symbol);
    void showState();

    Times times;
    double position;            ///< ms after the start, where watching is
    std::uint32_t lastTime = 0; ///< ms, the real clock; as the next
    std::uint32_t lastLook = 0; ///< at the keys
    bool hasBegun = false;      ///< the first frame is there
    bool standing = false, stepping = false;
    std::string shownTitle;
};

} // namespace quorva::replay
