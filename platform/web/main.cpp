// The game in a page, which calls it for each of its passes; or a kept game, which is watched.

#include "Framework/Config.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/Timer.h"
#include "game/GameBase.h"
#include "game/GameIdentity.h"
#include "platform/web/GameKeeper.h"
#include "platform/web/MenuTouch.h"
#include "platform/web/PageWatcher.h"
#include "platform/web/gl/Frame.h"
#include "replay/Stage.h"
#include "replay/Words.h"

#include <SDL.h>
#include <emscripten.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace quorva;

extern "C" {
double kovClock(); ///< ms, while the game does not stand still
/// Where watching is. @param time and length ms @param end what came out, null before the end
void kovShowTime(double time, double length, double speed, bool stands, bool seeks,
                 const char* end);
}

namespace {

using Words = std::vector<std::string>;

const std::string keep_option = "--keep-games", watch_option = "--watch"; // the page's own

std::unique_ptr<GameBase> game;          // null once it has ended
std::unique_ptr<web::GameKeeper> keeper; // null if games aren't kept
bool isSeen = true;                      // what the pass draws
std::uint32_t tickSeen = 0;              // the last that has been drawn

/// A kept game that is watched.
struct Watched {
    explicit Watched(const std::string& path)
        : summary(path), script(path), stage("/kov", script.setup), watcher(script, summary) {}

    replay::Summary summary;
    replay::Script script;
    replay::Stage stage;
    web::PageWatcher watcher;
    replay::Insertion insertion{watcher};
    bool hasEnded = false;
    std::string verdict; ///< once it has ended; empty: as it was recorded
};
std::unique_ptr<Watched> watched; // null while the player plays

/// ms, from 0 to a tick's period. The page's clock is asked itself: a kept game has what the game
/// has asked for, and nothing else.
int timeUntilTick() {
    const TimerClass& timer = Timer::Instance();
    const auto now = static_cast<std::uint32_t>(static_cast<std::uint64_t>(kovClock()));
    const auto left = static_cast<std::int32_t>(timer.lastBlip + timer.getProcessRate() - now);
    return std::clamp<int>(left, 0, timer.getProcessRate());
}

/// Between two ticks nothing moves, and a player who saves power is shown each of them once.
bool isIdle() {
    const TimerClass& timer = Timer::Instance();
    return config::Config::Instance().getSaveCPU() && !timer.paused && timeUntilTick() > 0 &&
           timer.blips == tickSeen;
}

void keepGames() {
    try {
        keeper = std::make_unique<web::GameKeeper>();
    } catch (const std::runtime_error& e) {
        std::cerr << "the games can't be kept: " << e.what() << '\n';
    }
}

void end() {
    game.reset();
    if (keeper != nullptr) keeper->finish();
    keeper.reset();
}

void startGame(const Words& options) {
    introduceGame();
    config::ConfigClass& config = config::Config::Instance();
    config.setDefaults();
    config.readFile();
    for (const std::string& option : options) {
        if (option == keep_option)
            keepGames();
        else
            config.parseCmdLineArgs("kov", option.c_str());
    }
    config.activateConfig();
    if (watched == nullptr) graphics::Renderer::drawsFrame = [] { return isSeen; };
    game = std::make_unique<GameBase>();
}

/// @return an exit code
int startWatching(const std::string& path) {
    try {
        watched = std::make_unique<Watched>(path);
    } catch (const std::runtime_error& e) {
        std::cerr << e.what() << '\n';
        return replay::exit_unusable;
    }
    startGame(replay::optionsOf(watched->script.setup));
    return 0;
}

void endWatching() {
    game.reset();
    web::PageWatcher& watcher = watched->watcher;
    watcher.finish();
    watched->hasEnded = true;
    watched->verdict = watcher.damage().empty() ? watcher.difference() : watcher.damage();
}

} // namespace

/// Starts the game, and returns while it goes on.
// NOLINTNEXTLINE(bugprone-exception-escape): the page catches it, and says so
int main(int argc, char* argv[]) {
    umask(S_IWGRP | S_IWOTH); // the page's own would leave new files without any permission
    const Words words(argv + 1, argv + argc);
    if (words.size() == 2 && words[0] == watch_option) return startWatching(words[1]);
    startGame(words);
    return 0;
}

extern "C" {

/// One pass of the main loop. @param seen false between two pictures of the page, when only the
/// game goes on
/// @return whether there will be another
EMSCRIPTEN_KEEPALIVE bool kovPass(bool seen) {
    if (game == nullptr) return false;
    if (seen && isIdle()) return true;
    isSeen = seen;
    web::seeFrames(seen);
    game->pass();
    if (seen) tickSeen = Timer::Instance().blips;
    if (keeper != nullptr) keeper->look();
    if (game->dead) end();
    return game != nullptr;
}

/// ms; in a pause there is none to wait for.
EMSCRIPTEN_KEEPALIVE int kovTimeUntilTick() {
    return Timer::Instance().paused ? Timer::Instance().getProcessRate() : timeUntilTick();
}

/// Whether a level runs, also in its pause.
EMSCRIPTEN_KEEPALIVE bool kovIsPlaying() {
    return game != nullptr && game->level != nullptr;
}

/// See touchMenu.
EMSCRIPTEN_KEEPALIVE void kovTouchMenu(double x, double y, bool down) {
    if (game != nullptr && game->level == nullptr) web::touchMenu(*game->mainMenu, x, y, down);
}

/// A turn of watching. @param ms since the last one
EMSCRIPTEN_KEEPALIVE void kovWatch(double ms) {
    web::PageWatcher& watcher = watched->watcher;
    if (game != nullptr && !watcher.goOn(*game, ms)) endWatching();
    kovShowTime(watcher.sessionTime(), watched->summary.length, watcher.pace.speed,
                watcher.pace.standing, watcher.isSeeking(),
                watched->hasEnded ? watched->verdict.c_str() : nullptr);
}

/// @param time ms, not before the one that is reached
EMSCRIPTEN_KEEPALIVE void kovSeek(double time, double speed, bool stands) {
    replay::Pace& pace = watched->watcher.pace;
    pace.speed = speed;
    pace.standing = stands;
    watched->watcher.seek(time);
}

} // extern "C"
