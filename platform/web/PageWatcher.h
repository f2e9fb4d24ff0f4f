#pragma once

#include "replay/Pace.h"
#include "replay/Summary.h"
#include "replay/WindowPlayback.h"

#include <cstdint>

class GameBase;

namespace quorva::web {

/// Shows a game in a page, which calls for a little of it at a time.
class PageWatcher : public replay::WindowPlayback {
public:
    PageWatcher(replay::Script& script_, const replay::Summary& summary);

    bool draws() override { return isSeen; }
    bool sounds() override { return !seeking && pace.isInTime(sessionTime()); }

    /// Plays what is due after that much time, though no longer than the page can wait.
    /// @return whether the game goes on
    bool goOn(GameBase& game, double ms);

    /// @param time ms, not before the one that is reached. What lies between is played unseen.
    void seek(double time);

    std::uint32_t sessionTime() const { return now() - start; } ///< ms after the first frame
    bool isSeeking() const { return seeking; }

    replay::Pace pace{0.0, 1.0};

protected:
    void show() override;

private:
    void takeKeys();
    std::uint32_t nextTime() const;
    bool isLastDue();

    const std::uint32_t start; ///< ms, the game's clock at its first frame
    bool seeking = false;
    bool isSeen = false; ///< the pass that is being played
};

} // namespace quorva::web
