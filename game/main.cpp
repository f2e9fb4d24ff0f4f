#include "Framework/Config.h"
#include "Framework/Game.h"
#include "Framework/Graphics/VideoDriver.h"
#include "game/GameBase.h"
#include "game/GameIdentity.h"

#include <SDL.h>

#include <iostream>

using namespace quorva;

namespace {

/// Reads every argument, also after a bad one.
/// @return whether the game is to start
bool readArguments(int argc, char* argv[]) {
    bool good = true;
    for (int i = 1; i < argc; ++i)
        if (!config::Config::Instance().parseCmdLineArgs(argv[0], argv[i])) good = false;
    return good;
}

} // namespace

int main(int argc, char* argv[]) {
    endOnSignals();
    introduceGame();
    config::Config::Instance().setDefaults();
    config::Config::Instance().readFile();
    graphics::keepToDriversWithGL();
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK) < 0)
        std::cerr << "Can't init the input handler\n"; // what needs it fails later, with a reason
    if (!readArguments(argc, argv)) {
        SDL_Quit(); // else a terminal that SDL took over stays raw
        return 0;
    }
    config::Config::Instance().activateConfig();
    GameBase game;
    game.mainLoop();
    return 0;
}
