// The game in a page, which calls it for each of its passes.

#include "Framework/Config.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/Timer.h"
#include "game/GameBase.h"
#include "game/GameIdentity.h"
#include "platform/web/GameKeeper.h"
#include "platform/web/MenuTouch.h"
#include "platform/web/gl/Frame.h"

#include <SDL.h>
#include <emscripten.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

using namespace quorva;

extern "C" double kovClock(); ///< ms, while the game does not stand still

namespace {

const std::string keep_option = "--keep-games"; // the page's own

std::unique_ptr<GameBase> game;          // null once it has ended
std::unique_ptr<web::GameKeeper> keeper; // null if games aren't kept
bool isSeen = true;                      // what the pass draws
std::uint32_t tickSeen = 0;              // the last that has been drawn

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

} // namespace

/// Starts the game, and returns while it goes on.
// NOLINTNEXTLINE(bugprone-exception-escape): the page catches it, and says so
int main(int argc, char* argv[]) {
    umask(S_IWGRP | S_IWOTH); // the page's own would leave new files without any permission
    introduceGame();
    config::ConfigClass& config = config::Config::Instance();
    config.setDefaults();
    config.readFile();
    for (int i = 1; i < argc; ++i) {
        if (argv[i] == keep_option)
            keepGames();
        else
            config.parseCmdLineArgs(argv[0], argv[i]);
    }
    config.activateConfig();
    graphics::Renderer::drawsFrame = [] { return isSeen; };
    game = std::make_unique<GameBase>();
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

} // extern "C"
