#pragma once

#include "replay/FramePicture.h"
#include "replay/Playback.h"
#include "replay/Remarks.h"
#include "replay/Report.h"
#include "replay/Shipped.h"
#include "replay/Story.h"

#include <functional>
#include <optional>
#include <string>

namespace quorva::replay {

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
    std::function<void(double part)> onProgress; ///< may be empty; part done, from 0 to 1

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
