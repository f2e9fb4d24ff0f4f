// Watching, in virtual time.

#include "replay/Watcher.h"
#include "headless/Sandbox.h"
#include "platform/standins/GLRecorder.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "replay/Stage.h"
#include "replay/Summary.h"
#include "tests/replay/Edited.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <iostream>

using namespace quorva;
using namespace quorva::replay;
using standins::sdl;

namespace {

const char* const kept = KOV_SOURCE_DIR "/tests/recordings/first-steps.kovreplay";
const char* const other = KOV_SOURCE_DIR "/tests/recordings/one-game.kovreplay";

/// Compares, whenever something of the game happens, its clock and the real one.
class Timed : public Watcher {
public:
    Timed(Script& script_, const Times& times_)
        : Watcher(script_, "Songs", times_), times(times_) {}

    double worst = 0.0; ///< ms of the session
    unsigned int shown = 0, titles = 0, idlePasses = 0;
    std::function<void()> onIdlePass;

private:
    void moveOn() override {
        Watcher::moveOn();
        if (shown != 0) compare();
    }
    void show() override {
        const std::uint64_t before = sdl().swaps;
        standins::glRecorder().start();
        Watcher::show();
        for (const standins::GLCall& call : standins::glRecorder().calls)
            titles += call.name.find("SDL_WM_SetCaption") == 0 ? 1 : 0;
        standins::glRecorder().stop();
        if (sdl().swaps == before) return;
        ++shown;
        compare();
    }
    void passIdly() override {
        ++idlePasses;
        if (onIdlePass) onIdlePass();
        Watcher::passIdly();
    }
    void compare() {
        const double wanted = times.from + sdl().ticks * times.speed;
        worst = std::max(worst, std::fabs(wanted - (now() - times.start)));
    }

    const Times times;
};

struct How {
    double speed;
    std::uint32_t from; ///< ms
};
using Step = std::function<void(Timed&)>;

/// Plays a file, and ends the process.
/// @param judge says on standard error how it went
[[noreturn]] void watch(const std::string& path, const How& how, const Step& begin,
                        const Step& judge) {
    {
        const Summary summary(path);
        Script script(path);
        const Stage stage(KOV_SOURCE_DIR, script.setup);
        Timed watcher(script, {summary.start, summary.length, how.from, how.speed});
        if (begin) begin(watcher);
        const Insertion insertion(watcher);
        runGame(script.setup);
        judge(watcher);
    }
    std::_Exit(0);
}

/// "DeathTest": these come first, as no game may have run in this process before.
class WatcherDeathTest : public testing::Test {
protected:
    const headless::Sandbox sandbox{KOV_SOURCE_DIR};
};

} // namespace

TEST_F(WatcherDeathTest, KeepsTheTimeOfTheGame) {
    const auto judge = [](Timed& watcher) {
        std::cerr << watcher.shown << " shown, " << watcher.worst << " ms late, "
                  << standins::sound().updates << " updates, " << watcher.titles << " titles"
                  << watcher.difference();
    };
    const struct {
        How how;
        const char* words; ///< a nap is 5 ms; besides, the game looks at the sound 999 times
    } cases[] = {{{1.0, 0}, "^1000 shown, 0 ms late, 6999 updates, 30 titles$"},
                 {{0.5, 10000}, "^666 shown, 0 ms late, 8999 updates, 20 titles$"},
                 {{2.0, 20000}, "^333 shown, 0 ms late, 1999 updates, 10 titles$"},
                 {{64.0, 0}, "^1000 shown, 310 ms late, 1093 updates, 30 titles$"}};
    for (const auto& c : cases)
        EXPECT_EXIT(watch(kept, c.how, {}, judge), testing::ExitedWithCode(0), c.words);
    edited(kept, ofFirst<Pass>([](Pass& p) { // a clock that goes on before the first frame
               p.clock.insert(p.clock.begin(), p.clock.front() - 20);
           }));
    EXPECT_EXIT(watch("edited", {1.0, 0}, {}, judge), testing::ExitedWithCode(0),
                "^1000 shown, 0 ms late, 6999 updates, 30 titles");
}

TEST_F(WatcherDeathTest, StandsAndStepsByKeys) {
    const auto press = [](int key) { standins::pushKey(key, true); };
    const auto begin = [&](Timed& watcher) {
        sdl().onSwap = [&watcher, press] {
            if (watcher.shown + 1 == 50) press(SDLK_SPACE);
        };
        sdl().onDelay = [&watcher, press, naps = 0]() mutable {
            if (watcher.shown < 50) return;
            switch (++naps) {
            case 100:
                std::cerr << watcher.shown << " stands, ";
                return press(SDLK_RIGHT);
            case 200:
                std::cerr << watcher.shown << " a step, ";
                return press(SDLK_SPACE);
            case 260:
                return press(SDLK_ESCAPE);
            default:
                return;
            }
        };
    };
    const auto judge = [](Timed& watcher) { std::cerr << watcher.shown << " goes on"; };
    EXPECT_EXIT(watch(kept, {1.0, 0}, begin, judge), testing::ExitedWithCode(0),
                "^50 stands, 51 a step, 61 goes on$");
    EXPECT_EXIT(watch(kept, {64.0, 0}, begin, judge), testing::ExitedWithCode(0),
                "^50 stands, 51 a step, 691 goes on$"); // at once, though more are due
}

TEST_F(WatcherDeathTest, TakesKeysOnTheWayToWhereItBegins) {
    const auto judge = [](Timed& watcher) {
        std::cerr << watcher.shown << " shown, left at " << watcher.now();
    };
    for (const auto& [key, words] : {std::pair{SDLK_SPACE, "^0 shown, left at 20015$"},
                                     {SDLK_ESCAPE, "^0 shown, left at 5$"}}) {
        const auto begin = [key = key](Timed&) {
            standins::pushKey(key, true);
            sdl().onDelay = [naps = 0]() mutable {
                if (++naps == 50) standins::pushKey(SDLK_ESCAPE, true);
            };
        };
        EXPECT_EXIT(watch(kept, {1.0, 20000}, begin, judge), testing::ExitedWithCode(0), words);
    }
}

TEST_F(WatcherDeathTest, GoesOnBehindADifferenceAndNamesTheFirst) {
    edited(other, toFirstShot({0, Event::key_down, SDLK_s}));
    const auto judge = [](Timed& watcher) {
        std::cerr << watcher.shown << ' ' << watcher.difference();
    };
    EXPECT_EXIT(
        watch("edited", {64.0, 0}, {}, judge), testing::ExitedWithCode(0),
        "^5000 differs at tick 400 .as recorded up to tick 300.: 32 objects in place of 33, "
        "the first that differs: list of lines$");
}

TEST_F(WatcherDeathTest, TakesKeysWhileNothingIsShown) {
    edited(kept, ofFirst<Pass>([](Pass& p) { p.idle = 1500000; }));
    const auto begin = [](Timed& watcher) {
        watcher.onIdlePass = [&watcher] {
            ++sdl().ticks;
            if (watcher.idlePasses == 998) standins::pushKey(SDLK_ESCAPE, true);
        };
    };
    const auto judge = [](Timed& watcher) { std::cerr << watcher.idlePasses << " passes"; };
    EXPECT_EXIT(watch("edited", {1.0, 0}, begin, judge), testing::ExitedWithCode(0),
                "^1000 passes$");
}
