// The game in a page, played by a recorded game's keys and clock. It is the page's program in every
// other way, and keeps the high score.

#include "replay/Playback.h"
#include "replay/Stage.h"

#include <boost/filesystem.hpp>
#include <emscripten.h>

#include <iostream>
#include <memory>

using namespace quorva::replay;

namespace {

/// Plays the page's song of the recorded one's length, or any.
class Watcher : public Playback {
public:
    using Playback::Playback;

private:
    FMOD_RESULT openSongOf(std::uint32_t ms, FMOD_SYSTEM* system, FMOD_SOUND** song) override {
        FMOD_RESULT result = FMOD_ERR_FILE_NOTFOUND;
        for (const auto& entry : boost::filesystem::directory_iterator("Songs")) {
            unsigned int length = 0;
            result = Tape::openSong(system, entry.path().c_str(), song);
            if (Tape::songLength(*song, &length) == FMOD_OK && length == ms) break;
        }
        return result;
    }
    void show() override {
        if (!difference().empty()) throw std::runtime_error(difference());
        Tape::endFrame();
    }
};

std::unique_ptr<Script> script; // for as long as the page
std::unique_ptr<Watcher> watcher;
std::unique_ptr<Insertion> insertion;

} // namespace

/// ms, as the game knows it.
extern "C" EMSCRIPTEN_KEEPALIVE double kovWatchedClock() {
    return watcher->now();
}

int main() {
    try {
        script = std::make_unique<Script>("/game.kovreplay");
        watcher = std::make_unique<Watcher>(*script);
        insertion = std::make_unique<Insertion>(*watcher);
        return runGame(script->setup);
    } catch (const std::exception& e) {
        std::cerr << "kov_watch: " << e.what() << '\n';
        return 1;
    }
}
