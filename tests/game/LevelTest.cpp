#include "tests/support/FieldTest.h"

#include "Framework/Timer.h"

#include <fstream>

using namespace quorva;

using LevelTest = FieldTest;

namespace {

std::vector<char> readFile(const char* name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

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
    EXPECT_EQ(marvo.fieldArea, 1200.0);
    const Count<SoundSquare> sounds;
    const struct {
        const char* what;
        primitives::Box box;
        unsigned short count;
        std::uint32_t points;
    } cases[] = {
        {"a quarter of the field, one triangle", {7.5, -7.5, -10, 10}, 1, 632},
        {"a hundredth of the field, four", {1.5, -1.5, -2, 2}, 4, 7684},
        {"the whole field", {15, -15, -20, 20}, 3, 0},
        {"larger than the field: no clamp", {30, -30, -20, 20}, 1, 2000},
        {"nothing caught", {1, -1, -1, 1}, 0, 0},
        {"not a number", {NAN, 0, 0, 1}, 1, 0},
    };
    for (const auto& c : cases) {
        marvo.score = 0;
        marvo.killTriangles(c.box, c.count);
        EXPECT_EQ(marvo.score, c.points) << c.what;
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

TEST_F(LevelTest, KeepsARecordButNoTie) {
    MarvoClass& marvo = Marvo::Instance();
    marvo.highScore = 500;
    std::remove("s.dat");
    marvo.score = 500;
    marvo.saveHighScore();
    EXPECT_TRUE(readFile("s.dat").empty()) << "a tie is no record";
    marvo.score = 501;
    marvo.saveHighScore();
    EXPECT_EQ(readFile("s.dat").size(), 4U);
    EXPECT_EQ(MarvoClass().highScore, 501U);
    std::remove("s.dat");
    EXPECT_EQ(MarvoClass().highScore, 0U);
}
