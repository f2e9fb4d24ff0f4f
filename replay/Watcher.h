#pragma once

#include "replay/Pace.h"
#include "replay/WindowPlayback.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quorva::replay {

/// Shows a game in a window, at the speed that it was played at, or another.
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

protected:
    void moveOn() override;
    void show() override;
    void passIdly() override;

private:
    std::uint32_t sessionTime() const { return now() - times.start; }
    void waitFor(double ms);
    void takeKeys();
    void showState();

    const Times times;
    Pace pace;
    std::optional<std::uint32_t> lastTime;  ///< ms, the real clock; as the next
    std::uint32_t lastLook = Tape::clock(); ///< at the keys
    double stepEnd = 0.0;                   ///< ms of the session: how far the last step goes
    bool hasBegun = false;                  ///< the first frame is there
    std::string shownTitle;
};

} // namespace quorva::replay
