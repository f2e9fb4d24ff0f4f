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
#include <functional>
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

struct BareGame : Game {
    void process() override {}
    void update() override {}
};

/// Counts the beats, and lets `onPass` see every pass.
struct Metronome : Component {
    void process() override {
        ++ticks;
        sdl().ticks += tickDuration;
    }
    void update() override {
        ++passes;
        sdl().ticks += passDuration;
        onPass();
    }
    int ticks = 0, passes = 0;
    std::uint32_t tickDuration = 0, passDuration = 10;
    std::function<void()> onPass;
};

class LoopTest : public testing::Test {
protected:
    void SetUp() override {
        sdl().ticks = 1000;
        Timer::Instance().paused = false;
        Timer::Instance().calculateLastBlip();
        Timer::Instance().reset();
        Engine::Instance().addComponent(&metronome);
    }
    void TearDown() override {
        Engine::Instance().delComponent(&metronome);
        Timer::Instance().paused = false;
    }
    /// Turns the loop for that many passes.
    void passes(int count, const std::function<void(int)>& onPass = {}) {
        BareGame game;
        metronome.passes = 0;
        metronome.onPass = [&] {
            if (onPass) onPass(metronome.passes);
            if (metronome.passes == count) game.dead = true;
        };
        game.mainLoop();
    }

    Metronome metronome;
};

} // namespace

TEST_F(LoopTest, TicksEveryThirtyMillisecondsAndUpdatesEveryPass) {
    passes(31); // ticks fall due after passes 3, 6, ... 30
    EXPECT_EQ(metronome.ticks, 10);
    EXPECT_EQ(Timer::Instance().blips, 10U);
}

TEST_F(LoopTest, MeasuresFromTheEndOfATickAndMakesNothingUp) {
    metronome.tickDuration = 100;
    passes(7); // due at pass 4 (30 ms) and, 30 ms after its end, at pass 7
    EXPECT_EQ(metronome.ticks, 2);
}

TEST_F(LoopTest, StandsStillInAPauseButGoesOnUpdating) {
    TimerClass& timer = Timer::Instance();
    passes(20, [&](int pass) {
        if (pass == 1) timer.pauseGame();
        if (pass == 18) timer.unPauseGame();
    });
    EXPECT_EQ(metronome.ticks, 1) << "the first tick after the pause comes at once";
    EXPECT_EQ(timer.getTicks(), 30U) << "the pause of 170 ms is out of the game's time";
}

TEST_F(LoopTest, SleepsUntilTheNextTickIfItIsToSaveTheProcessor) {
    const struct {
        bool saves, isPaused;
        std::uint32_t pass; ///< ms
        const char* sleeps;
    } cases[] = {{false, false, 20, ""},
                 {true, false, 20, "30000 10000 10000 "}, // none when a tick is overdue
                 {true, false, 30, "30000 "},             // or due at this moment
                 {true, true, 20, ""}};
    for (const auto& c : cases) {
        SetUp();
        activate({{c.saves ? "SaveCPU" : "NoSaveCPU", 0}});
        Timer::Instance().paused = c.isPaused;
        metronome.passDuration = c.pass;
        sleeps.clear();
        passes(4);
        EXPECT_EQ(sleeps, c.sleeps) << c.pass;
    }
}

TEST(Timer, ASecondPauseForgetsTheFirst) {
    sdl().ticks = 0;
    TimerClass timer;
    EXPECT_EQ(timer.blips, 0U);
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
    Timer::Instance().reset();
    CounterManagerClass counters;
    counters.start("none");
    counters.end("none");
    EXPECT_TRUE(std::isnan(counters.getMean("none")));
    EXPECT_EQ(counters.getElapsed("none"), 0U);
    TimeCounter* const counter = counters.addNewCounter("flight");
    EXPECT_EQ(counters.addNewCounter("flight"), counter);
    for (int i = 0; i < 103; ++i) {
        counters.start("flight");
        EXPECT_TRUE(counter->running);
        sdl().ticks += i == 0 ? 1U : i == 1 ? 9U : i == 2 ? 4U : i < 53 ? 5U : 6U;
        counters.end("flight");
        EXPECT_FALSE(counter->running);
    }
    EXPECT_EQ(counters.getMean("flight"), 5.5);
    EXPECT_EQ(counters.getElapsed("flight"), 6U);
    EXPECT_EQ(counter->starts, 103U);
    EXPECT_EQ(counter->minimum, 4U) << "the first of all was the maximum then";
    EXPECT_EQ(counter->maximum, 9U);
}
