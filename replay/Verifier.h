#pragma once

#include "replay/FramePicture.h"
#include "replay/Playback.h"
#include "replay/Remarks.h"
#include "replay/Report.h"
#include "replay/Shipped.h"
#include "replay/Story.h"

#include <chrono>
#include <optional>
#include <string>

namespace quorva::replay {

/// Says on a terminal how much is done.
class Meter {
public:
    /// @param part done, from 0 to 1. To be called often: it seldom looks at the clock.
    void show(double part);
    void clear();

private:
    const bool isWanted = isTerminal();
    static bool isTerminal();

    bool hasShown = false;
    unsigned int calls = 0;
    std::chrono::steady_clock::time_point shown = std::chrono::steady_clock::now();
};

/// Plays a file without a window, as fast as it goes, and tells what happens in its games.
class Verifier : public Playback {
public:
    /// @param withPictures of the games' best catches
    Verifier(Script& script_, const Shipped& shipped_, bool withPictures);

    bool draws() override { return pictureIsDue; }

    void finish();

    std::string verdict(); ///< "holds", or what else is to be said
    std::vector<Remark> remarks(const GameStory& game) const { return remarksOn(game, changes); }
    bool anyGameMarked() const;
    Report report();

    Story story;
    Meter meter;

private:
    void prepareGame() override;
    void show() override;
    void passIdly() override;
    void look();
    void takePicture();

    const Shipped& shipped;
    Changes changes;
    std::optional<std::uint32_t> start; ///< ms, the game's clock at its first frame

    std::optional<FramePicture> camera;
    bool pictureIsDue = false;
    std::vector<std::string> pictures; ///< of the best catch so far, by game
};

} // namespace quorva::replay
