// Records the games that the tests replay anew: for a change that is meant to alter play.
//   kov_record FOLDER

#include "headless/Bot.h"
#include "headless/HeadlessGame.h"
#include "headless/Recording.h"
#include "headless/Sandbox.h"
#include "headless/StateHash.h"

#include "game/Marvo.h"

#include <iostream>

using namespace quorva::headless;

namespace {

const struct {
    const char* name;
    std::uint32_t seed;
    std::uint32_t ticks;
    bool visitsPages;
} games[] = {
    {"first-steps", 11, 1000, false},
    {"one-game", 23, 5000, false},
    {"pages-and-pauses", 37, 3000, true},
    {"long-evening", 58, 14000, true},
};

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: kov_record FOLDER\n";
        return 2;
    }
    const boost::filesystem::path folder = boost::filesystem::absolute(argv[1]);
    const Sandbox sandbox(KOV_SOURCE_DIR);
    for (const auto& game : games) {
        HeadlessGame run(game.seed);
        Bot bot(game.seed);
        bot.visitsPages = bot.pauses = game.visitsPages;
        Recording recording;
        recording.startTicks = game.seed;
        for (std::uint32_t tick = 0; tick < game.ticks; ++tick) {
            bot.onKey = [&](int symbol, bool down) {
                recording.keys.push_back({tick, symbol, down});
            };
            bot.play();
            run.tick();
            recording.add(stateParts(run.game()));
        }
        recording.save((folder / game.name).string());
        std::cout << game.name << ": " << game.ticks << " ticks, " << recording.keys.size()
                  << " key events, games " << bot.games << ", last score "
                  << Marvo::Instance().score << "\n";
    }
    return 0;
}
