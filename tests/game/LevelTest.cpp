#include "tests/support/FieldTest.h"
#include "tests/support/Files.h"

#include "Framework/Timer.h"

using namespace quorva;

using LevelTest = FieldTest;

TEST_F(LevelTest, PausesWithASoundButNotAsItEnds) {
    const Count<SoundPause> sounds;
    for (const bool paused : {true, false, false}) {
        run.press(SDLK_p);
        run.frame();
        EXPECT_EQ(Timer::Instance().paused, paused);
        level->dead = !paused;
    }
    EXPECT_EQ(sounds.count, 1) << "going on is silent";
}

TEST_F(LevelTest, ScoresSmallRectanglesFarHigher) {
    MarvoClass& marvo = Marvo::Instance();
    const Count<SoundSquare> sounds;
    const struct {
        const char* what;
        primitives::Box box;
        unsigned short count;
        std::uint32_t points;
    } cases[] = {
        {"larger than the field: no clamp", {30, -30, -20, 20}, 1, 2000},
        {"not a number", {NAN, 0, 0, 1}, 1, 0},
        {"other points with a mantissa of 53 or 113 bits", {9.5, 1.5, -14, 1}, 5, 6560},
    };
    for (const auto& c : cases) {
        marvo.score = 100;
        marvo.killTriangles(c.box, c.count);
        EXPECT_EQ(marvo.score, 100 + c.points) << c.what;
    }
    EXPECT_EQ(static_cast<std::size_t>(sounds.count), std::size(cases));
    marvo.score = 0xFFFFFFFFU;
    marvo.killTriangles({7.5, -7.5, -10, 10}, 1);
    EXPECT_EQ(marvo.score, 631U) << "low 32 bits";
}

TEST_F(LevelTest, GivesALifeAboveEachMarkOneATick) {
    MarvoClass& marvo = Marvo::Instance();
    const struct {
        std::uint32_t score;
        int lives;
    } cases[] = {{100000, 2}, {100001, 3}, {300001, 4}, {300001, 5}, {300001, 5}};
    for (const auto& c : cases) {
        marvo.score = c.score;
        marvo.process();
        EXPECT_EQ(marvo.lives, c.lives) << c.score;
    }
}

TEST_F(LevelTest, ReadsAHighScoreOfAnyLength) {
    for (const auto& [length, read] : {std::pair{0, 0U}, {1, 0xFFU}, {3, 0xFFFFFFU}, {5, ~0U}}) {
        fill("s.dat", std::string(length, '\xff'));
        EXPECT_EQ(MarvoClass().highScore, read) << length << " bytes";
    }
}
