// The game in a page, played by a recorded game's keys and clock. It is the page's program in every
// other way, and keeps the high score.

#include "replay/Player.h"
#include "replay/Stage.h"

#include <iostream>

using namespace quorva::replay;

namespace {

/// Plays the songs as one of the page's, whose length is the recorded one's.
class Watcher : public Player {
public:
    using Player::Player;

private:
    FMOD_RESULT openSongOf(std::uint32_t, FMOD_SYSTEM* system, FMOD_SOUND** song) override {
        return Tape::openSong(system, "Songs/Afterglow.ogg", song);
    }
    void show() override {
        if (!difference().empty()) throw std::runtime_error(difference());
        Tape::endFrame();
    }
};

} // namespace

int main() {
    try {
        static Script script("/game.kovreplay"); // for as long as the page
        static Watcher watcher(script);
        insert(&watcher);
        return runGame(script.setup);
    } catch (const std::exception& e) {
        std::cerr << "kov_watch: " << e.what() << '\n';
        return 1;
    }
}
