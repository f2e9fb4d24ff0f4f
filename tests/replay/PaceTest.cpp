// How watching goes on, by real time and by keys.

#include "replay/Pace.h"

#include <SDL.h>
#include <gtest/gtest.h>

using namespace quorva::replay;

TEST(Pace, FollowsTimeAtItsSpeedButNotThroughASleep) {
    const struct {
        const char* what;
        double speed, ms;
        bool stands;
        double position;
    } cases[] = {
        {"as it was played", 1.0, 16.0, false, 1016.0},
        {"slower", 0.25, 16.0, false, 1004.0},
        {"the longest wait", 2.0, 500.0, false, 2000.0},
        {"a tab that wasn't seen", 2.0, 60000.0, false, 2000.0},
        {"stopped", 2.0, 16.0, true, 1000.0},
    };
    for (const auto& c : cases) {
        Pace pace(1000.0, c.speed);
        pace.standing = c.stands;
        pace.goOn(c.ms);
        EXPECT_EQ(pace.position, c.position) << c.what;
    }
}

TEST(Pace, HasASlowestAndAFastestSpeed) {
    Pace pace(0.0, 1.0);
    for (int i = 0; i < 20; ++i)
        pace.press(i % 2 == 0 ? SDLK_UP : SDLK_RIGHT);
    EXPECT_EQ(pace.speed, 64.0);
    pace.press(SDLK_DOWN);
    EXPECT_EQ(pace.speed, 32.0);
    for (int i = 0; i < 20; ++i)
        pace.press(i % 2 == 0 ? SDLK_DOWN : SDLK_LEFT);
    EXPECT_EQ(pace.speed, 0.125);
}

TEST(Pace, LeavesOutWhatComesTooLate) {
    for (const double speed : {0.5, 1.0, 4.0}) {
        const Pace pace(1000.0, speed);
        const double late = speed > 1.0 ? 240.0 : 60.0;
        EXPECT_TRUE(pace.isInTime(1000.0 - late)) << speed;
        EXPECT_FALSE(pace.isInTime(999.0 - late)) << speed;
    }
}
