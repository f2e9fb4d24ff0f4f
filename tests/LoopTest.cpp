#include "Framework/Component.h"
#include "Framework/CounterManager.h"
#include "Framework/Engine.h"
#include "Framework/Game.h"
#include "Framework/Timer.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Settings.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <string>

using namespace quorva;
using standins::sdl;

namespace {
std::string sleeps; ///< in microseconds
} // namespace

extern "C" int usleep(useconds_t microseconds) { // stands before the C library's own
    sleeps += std::to_string(microseconds) + ' ';
    return 0;
}

namespace {

/// Turns its loop for four passes.
struct FourPasses : Game, Component {
    explicit FourPasses(std::uint32_t duration_) : duration(duration_) {
        Engine::Instance().addComponent(this);
        mainLoop();
        Engine::Instance().delComponent(this);
    }
    void process() override {}
    void update() override {
        sdl().ticks += duration;
        dead = ++passes == 4;
    }
    const std::uint32_t duration; ///< of a pass, ms
    int passes = 0;
};

} // namespace

TEST(Loop, SleepsUntilTheNextTickIfItIsToSaveTheProcessor) {
    const struct {
        bool saves, isPaused;
        std::uint32_t pass; ///< ms
        const char* sleeps;
    } cases[] = {{false, false, 20, ""},
                 {true, false, 20, "30000 10000 10000 "}, // none when a tick is overdue
                 {true, false, 30, "30000 "},             // or due at this moment
                 {true, true, 20, ""}};
    TimerClass& timer = Timer::Instance();
    for (const auto& c : cases) {
        sdl().ticks = 1000;
        timer.calculateLastBlip();
        timer.reset();
        activate({{c.saves ? "SaveCPU" : "NoSaveCPU", 0}});
        timer.paused = c.isPaused;
        sleeps.clear();
        const FourPasses passes(c.pass);
        EXPECT_EQ(sleeps, c.sleeps) << c.pass;
        timer.paused = false;
    }
}

TEST(Timer, ASecondPauseForgetsTheFirst) {
    sdl().ticks = 0;
    TimerClass timer;
    timer.pauseGame();
    sdl().ticks = 400;
    timer.pauseGame();
    sdl().ticks = 1000;
    timer.unPauseGame();
    EXPECT_EQ(timer.getTicks(), 400U);
    timer.reset();
    timer.correct(0xFFFFFFFFUL);
    EXPECT_EQ(timer.getTicks(), 1U) << "times wrap at 32 bits";
}

TEST(Timer, CountersKeepTheirLastHundredDurations) {
    CounterManagerClass counters;
    EXPECT_TRUE(std::isnan(counters.getMean("none")));
    const TimeCounter* const counter = counters.addNewCounter("flight");
    EXPECT_EQ(counters.addNewCounter("flight"), counter);
    for (std::uint32_t i = 0; i < 102; ++i) { // 1 and 9, then 4 and 6 in turn
        counters.start("flight");
        sdl().ticks += i < 2 ? 1 + 8 * i : 4 + i % 2 * 2;
        counters.end("flight");
    }
    EXPECT_EQ(counters.getMean("flight"), 5.0);
    EXPECT_EQ(counters.getElapsed("flight"), 6U);
    EXPECT_EQ(counter->minimum, 4U) << "the first of all was the maximum then";
    EXPECT_EQ(counter->maximum, 9U);
}
