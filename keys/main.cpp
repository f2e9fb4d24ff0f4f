// Lets the player choose keys and buttons by pressing them, and writes them into bind1.conf.

#include "keys/Program.h"

#include "Framework/Config.h"
#include "Framework/GameInfo.h"
#include "Framework/Graphics/VideoDriver.h"
#include "Framework/Utility.h"
#include "game/Actions.h"
#include "game/GameIdentity.h"

#include <SDL.h>

#include <cstdlib>
#include <iostream>

using namespace quorva;

namespace {

const char* const usage_text =
    "usage: kov-keys   asks for keys, or for the buttons of a pad, and writes bind1.conf\n"
    "       kov-keys --help | --version\n";
constexpr int exit_unusable = 2;

/// @return the exit code, if that is all that was asked for; else -1
int answerOptions(int argc, char* argv[]) {
    if (argc < 2) return -1;
    const std::string option = argv[1];
    if (option == "--help" || option == "-h") {
        std::cout << usage_text;
        return 0;
    }
    if (option == "--version") {
        std::cout << "KOV " << GameInfo::Instance().version << '\n';
        return 0;
    }
    std::cerr << "kov-keys: no such option: " << utility::printable(option) << '\n' << usage_text;
    return exit_unusable;
}

/// The game's, but for a rest between the frames: nothing is in a hurry here.
void setUp() {
    config::ConfigClass& config = config::Config::Instance();
    config.setDefaults();
    config.readFile();
    config.setSaveCPU(true);
    setenv("SDL_VIDEO_X11_WMCLASS", "kov", 0); // for the desktop it belongs to the game
    graphics::keepToDriversWithGL();
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK) < 0)
        std::cerr << "Can't init the input handler\n"; // what needs it fails later, with a reason
    config.activateConfig();
    mapActions();
}

/// @return the exit code
int ask() {
    endOnSignals();
    setUp();
    keys::Program program;
    program.mainLoop();
    const keys::Questions& questions = program.questions;
    if (!questions.saved().empty())
        (questions.failed() ? std::cerr : std::cout) << "kov-keys: " << questions.saved() << '\n';
    return questions.failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char* argv[]) {
    try {
        introduceGame();
        GameInfo::Instance().title = "KOV Keys";
        const int code = answerOptions(argc, argv);
        return code >= 0 ? code : ask();
    } catch (const std::exception& e) {
        std::cerr << "kov-keys: " << e.what() << '\n';
        return EXIT_FAILURE;
    }
}
