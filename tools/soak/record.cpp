// Lets the bot play and keeps its game: for the games that the tests play again.
//   kov_record FILE [--seed S] [--ticks N] [--pages 1] [--songs N] [--stick 1] [--music 0]
//     [--idle N] [--wait S] [--song-length MS] [--forge 1]
// With --idle, N passes go by between two ticks, as on a real machine; with --wait, the game stands
// in a pause for S seconds halfway; with --forge, a point comes from nowhere there.

#include "headless/Bot.h"
#include "headless/GameMain.h"
#include "headless/Sandbox.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "replay/Recorder.h"

#include "Framework/Timer.h"
#include "game/Marvo.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>

using namespace quorva;
using standins::sdl;

namespace {

using Options = std::map<std::string, unsigned long>;

bool parse(int argc, char* argv[], Options& options) {
    for (int i = 2; i < argc; i += 2) {
        const auto option = options.find(argv[i]);
        if (i + 1 == argc || option == options.end()) return false;
        option->second = std::strtoul(argv[i + 1], nullptr, 10);
    }
    return argc > 1;
}

/// Moves the stick about, every other second; the bot has the keys.
void moveStick(std::uint32_t tick) {
    if (tick % 64 > 8) return;
    sdl().axes[0][tick % 2] = static_cast<std::int16_t>(tick * 7919);
    standins::pushAxisMotion();
    if (tick % 64 == 0) standins::pushButton(static_cast<int>(tick % 16), true);
}

/// Pauses at that pass; the bot goes on in the next.
void waitAt(std::uint32_t pass, unsigned long when, unsigned long seconds) {
    if (pass == when)
        for (const bool down : {true, false})
            standins::pushKey(SDLK_p, down);
    if (pass == when + 1) sdl().ticks += static_cast<std::uint32_t>(seconds * 1000);
}

/// @param length of each, ms; the first can't be played
void makeSongs(unsigned long count, unsigned long length) {
    for (unsigned long i = 0; i < count; ++i)
        std::ofstream("Songs/" + std::to_string(i) + ".ogg");
    if (count > 0) standins::sound().unreadable = {"./Songs/0.ogg", "Songs/0.ogg"};
    standins::sound().songLength = static_cast<unsigned int>(length);
}

} // namespace

int main(int argc, char* argv[]) {
    Options options = {{"--seed", 1},  {"--ticks", 5000}, {"--pages", 0},
                       {"--songs", 0}, {"--stick", 0},    {"--music", 1},
                       {"--idle", 0},  {"--wait", 0},     {"--song-length", 20000},
                       {"--forge", 0}};
    if (!parse(argc, argv, options)) {
        std::cerr << "usage: kov_record FILE [--seed S] [--ticks N] [--pages 1] [--songs N] "
                     "[--stick 1] [--music 0] [--idle N] [--wait S] "
                     "[--song-length MS] [--forge 1]\n";
        return 2;
    }
    const std::string path = boost::filesystem::absolute(argv[1]).string();
    const headless::Sandbox sandbox(KOV_SOURCE_DIR);
    boost::filesystem::copy_file(KOV_SOURCE_DIR "/packaging/bind1.conf", "bind1.conf");
    makeSongs(options["--songs"], options["--song-length"]);
    const auto seed = static_cast<std::uint32_t>(options["--seed"]);
    headless::Bot bot(seed);
    bot.visitsPages = bot.pauses = options["--pages"] != 0;
    std::uint32_t passes = 0, idle = 0;
    sdl().ticks = seed;
    sdl().joysticks = static_cast<int>(options["--stick"]);
    sdl().onSwap = [&] {
        if (idle++ < options["--idle"]) return;
        idle = 0;
        sdl().ticks += Timer::Instance().getProcessRate();
        if (options["--wait"] != 0) waitAt(passes, options["--ticks"] / 2, options["--wait"]);
        bot.play();
        if (options["--stick"] != 0) moveStick(passes);
        if (passes == options["--ticks"] / 2) Marvo::Instance().score += options["--forge"];
        if (++passes == options["--ticks"]) standins::pushQuit();
    };
    replay::Recorder recorder(path);
    const replay::Insertion insertion(recorder);
    const int code = headless::runGameMain({options["--music"] != 0 ? "-m" : "-M"});
    recorder.finish();
    std::cout << passes << " passes, games " << bot.games << ", best score " << recorder.bestScore
              << '\n';
    return code;
}
