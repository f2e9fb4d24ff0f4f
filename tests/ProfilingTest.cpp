#include "Framework/CounterManager.h"
#include "Framework/Timer.h"
#include "platform/headless/VirtualSDL.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace quorva;

TEST(TimeCounters, KeepTheLastSamplesAndTheirExtremes) {
    Timer::Instance().reset();
    TimeCounter counter(3);
    EXPECT_TRUE(std::isnan(counter.getMean()));
    for (const unsigned int ms : {7U, 7U, 9U, 2U}) {
        counter.start();
        headless::sdl().ticks += ms;
        counter.end();
    }
    EXPECT_DOUBLE_EQ(counter.getMean(), 6.0) << "of 7, 9 and 2";
    EXPECT_EQ(counter.maximum, 9U);
    EXPECT_EQ(counter.minimum, 2U);
    EXPECT_EQ(counter.starts, 4U);
    headless::sdl().ticks += 10;
    counter.end(); // from the last start
    EXPECT_EQ(counter.elapsed, 12U);
}

TEST(TimeCounters, AreKeptByNameAndUnknownOnesDoNoHarm) {
    CounterManagerClass manager;
    TimeCounter* const draw = manager.addNewCounter("draw");
    EXPECT_EQ(manager.addNewCounter("draw"), draw);
    EXPECT_EQ(draw->sampleLimit, 100);
    manager.start("draw");
    headless::sdl().ticks += 4;
    manager.end("draw");
    EXPECT_EQ(manager.getElapsed("draw"), 4U);
    EXPECT_EQ(manager.getMean("draw"), 4.0);
    manager.start("other");
    manager.end("other");
    EXPECT_EQ(manager.getElapsed("other"), 0U);
    EXPECT_TRUE(std::isnan(manager.getMean("other")));
}
