#include "tests/support/FieldTest.h"

#include "Framework/Graphics/Stuff/GBox.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/GameOverScreen.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"

#include <fstream>

using namespace quorva;

namespace {

class LevelTest : public FieldTest {
protected:
    /// Only the level's own ticks: what it makes lies still.
    void levelTicks(int count) {
        for (int i = 0; i < count; ++i)
            level->process();
    }
};

std::vector<char> readFile(const char* name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST_F(LevelTest, RaisesTheDifficultyOnTheSecondTickAndThenEvery650) {
    std::string steps;
    for (int tick = 1; tick <= 2000; ++tick) {
        const int before = level->levelNumber;
        level->process();
        if (level->levelNumber != before) steps += std::to_string(tick) + " ";
    }
    EXPECT_EQ(steps, "2 652 1302 1952 ");
    EXPECT_NEAR(level->spawnBonus, 0.004, 1e-12);
}

TEST_F(LevelTest, SpawnsFiveToTenUnitsOutsideTheViewWithinItsBounds) {
    level->levelNumber = 40; // speed and size at their caps
    for (int i = 0; i < 400; ++i)
        level->spawnTriangle();
    int sides[4] = {};
    for (const auto& [id, entity] : Engine::Instance().entities) {
        const auto* const triangle = dynamic_cast<Triangle*>(entity);
        if (triangle == nullptr) continue;
        const math::Point& p = entity->physics->position;
        const double outside = std::max(std::fabs(p.x) - 20.0, std::fabs(p.y) - 15.0);
        EXPECT_GE(outside, 5.0);
        EXPECT_LT(outside, 10.0);
        ++sides[std::fabs(p.x) > 20 ? (p.x > 0 ? 0 : 1) : (p.y > 0 ? 2 : 3)];
        EXPECT_GT(triangle->speed, 9.0);
        EXPECT_LE(triangle->speed, 10.0);
        EXPECT_GT(triangle->size, 2.0);
        EXPECT_LE(triangle->size, 2.25);
    }
    for (const int side : sides)
        EXPECT_GT(side, 60);
}

TEST_F(LevelTest, DrawsSideThenPlaceThenSpeedThenSizeFromTheStream) {
    math::MTRand_int32 random;
    random.seed(99UL);
    double r[9];
    for (double& draw : r)
        draw = math::randomFraction(random);
    const double side = r[0];
    random.seed(99UL);
    level->levelNumber = 3;
    level->deathSizePenalty = 0.05;
    level->spawnTriangle();
    const auto* const triangle = newest<Triangle>();
    ASSERT_NE(triangle, nullptr);
    const math::Point& p = triangle->physics->position;
    const bool vertical = side < 0.5; // above or below
    EXPECT_EQ(vertical ? p.x : p.y, 2 * (r[vertical ? 1 : 2] - 0.5) * (vertical ? 20 : 15));
    EXPECT_EQ(triangle->speed, 2 * (1 + 0.5 * r[3]) + 2 * (r[4] - 0.25));
    EXPECT_NEAR(triangle->size, 3 / 15.0 + 1 + 2 * (r[5] - 0.5) - 0.05, 1.0 + 1e-12);
    EXPECT_EQ(triangle->modelB.x, -r[6]);
    EXPECT_EQ(triangle->modelC.x, r[7]);
    EXPECT_EQ(math::randomFraction(random), r[8]) << "nothing more is drawn";
}

TEST_F(LevelTest, DropsABombEvery500TicksAndAPowerUpEvery16Triangles) {
    levelTicks(499);
    EXPECT_EQ(countOf<Bomb>(), 0);
    levelTicks(1);
    EXPECT_EQ(countOf<Bomb>(), 1);
    const int present = countOf<PowerUpWithRays>();
    level->trianglesSincePowerUp = 15;
    level->ticksSinceSpawn = 0;
    level->spawnBase = -1; // a triangle at every tick
    levelTicks(1);
    EXPECT_EQ(countOf<PowerUpWithRays>(), present + 1);
    EXPECT_EQ(level->trianglesSincePowerUp, 0);
    for (const auto& [id, entity] : Engine::Instance().entities)
        if (dynamic_cast<PowerUp*>(entity) != nullptr) {
            EXPECT_LE(std::fabs(entity->physics->position.x), 17.5);
            EXPECT_LE(std::fabs(entity->physics->position.y), 12.5);
        }
}

TEST_F(LevelTest, EasesWithEachDeath) {
    publish(PlayerDead());
    publish(PlayerDead());
    EXPECT_DOUBLE_EQ(level->deathSpawnPenalty, 0.0005);
    EXPECT_DOUBLE_EQ(level->deathSizePenalty, 0.05);
}

TEST_F(LevelTest, KeepsTheDisplayWithoutMovingItsWords) {
    Marvo::Instance().score = 123456;
    const double right = level->scoreWord->bounds.right;
    EXPECT_EQ(level->livesWord->word, "1UP!     3   lives");
    EXPECT_EQ(level->nextLifeWord->word, "Next Life 50000");
    levelTicks(1);
    EXPECT_EQ(level->scoreWord->word, "123456");
    EXPECT_EQ(level->scoreWord->bounds.right, right);
    EXPECT_EQ(level->livesWord->word, "1UP!     2   lives");
    EXPECT_EQ(level->nextLifeWord->word, "Next    Life    100000");
}

TEST_F(LevelTest, PausesAndResumesByTheKey) {
    run.ticks(10);
    const std::uint32_t before = Timer::Instance().getTicks();
    run.press(SDLK_p);
    run.frame();
    EXPECT_TRUE(level->pauseBox->active && level->pauseWord->active);
    const std::uint32_t tick = level->tickCount;
    run.ticks(50);
    EXPECT_EQ(level->tickCount, tick);
    run.press(SDLK_p);
    run.frame();
    EXPECT_FALSE(level->pauseBox->active || level->pauseWord->active);
    EXPECT_EQ(Timer::Instance().getTicks(), before) << "the pause is out of the game's time";
    level->dead = true;
    run.press(SDLK_p);
    run.frame();
    EXPECT_FALSE(Timer::Instance().paused) << "a level that is ending";
}

TEST_F(LevelTest, ScoresSmallRectanglesFarHigher) {
    MarvoClass& marvo = Marvo::Instance();
    EXPECT_EQ(marvo.fieldArea, 1200.0);
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

TEST_F(LevelTest, TheVerdictFitsTheScore) {
    MarvoClass& marvo = Marvo::Instance();
    const struct {
        std::uint32_t score;
        const char* comment;
    } cases[] = {
        {49999, "Thanks for playing! Try to go for a high score, it's fun!"},
        {50000, "Not bad, you're getting there"},
        {125000, "Pretty Impressive"},
        {250000, "Good Score! You're super!"},
        {750001, "Wow... you sure you aren't cheating ;)"},
    };
    marvo.highScore = 1000000;
    for (const auto& c : cases) {
        marvo.score = c.score;
        const GameOverScreen screen;
        EXPECT_EQ(screen.messageWord->word, c.comment) << c.score;
        EXPECT_EQ(screen.highScoreWord->word, "The highscore is 1000000. Try to beat it!");
        EXPECT_EQ(screen.scoreWord->bounds.right, 0.0) << "the first digit stands at the middle";
    }
    marvo.score = 1000001;
    const GameOverScreen record;
    EXPECT_EQ(record.highScoreWord->word, "Congratulations, you have the new high score!");
    EXPECT_EQ(marvo.highScore, 1000001U);
}
