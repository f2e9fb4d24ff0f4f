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
