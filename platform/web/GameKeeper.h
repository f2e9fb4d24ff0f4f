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

    /// After each pass: once a game has ended, its score goes into the file's name. Few players
    /// end the program before they leave the page.
    void look();

    /// The program has ended: the file goes if there is no game in it.
    void finish();

private:
    void nameByScore();

    replay::KeptName name;
    std::string path;
    replay::Recorder recorder;
    replay::Insertion insertion{recorder};
    unsigned int namedGames = 0; ///< that the file's name knows of
};

} // namespace quorva::web
