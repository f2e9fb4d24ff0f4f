#pragma once

#include "replay/KeptGames.h"
#include "replay/Recorder.h"

#include <string>

namespace quorva::web {

/// Keeps the games of a session, as long as it lasts, in a file among the latest and the best.
class GameKeeper {
public:
    /// Throws std::runtime_error with the reason if there can be no file.
    GameKeeper();
    ~GameKeeper();
    GameKeeper(const GameKeeper&) = delete;
    GameKeeper& operator=(const GameKeeper&) = delete;

    /// The program has ended: the file gets its score into the name, or goes if there is no game.
    void finish();

private:
    replay::KeptName name;
    std::string path;
    replay::Recorder recorder;
};

} // namespace quorva::web
