#include "platform/headless/HeadlessGame.h"

#include "Framework/Engine.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/GameOverScreen.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "platform/headless/VirtualSDL.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace quorva;
using headless::HeadlessGame;

namespace {

/// Fires and moves by a fixed pattern, for ever.
void playPattern(HeadlessGame& run, unsigned int tick) {
    const int fires[] = {SDLK_w, SDLK_a, SDLK_s, SDLK_d};
    const int moves[] = {SDLK_UP, SDLK_LEFT, SDLK_DOWN, SDLK_RIGHT};
    if (tick % 9 == 0) run.press(fires[tick / 9 % 4]);
    if (tick % 30 == 0) run.key(moves[tick / 30 % 4], true);
    if (tick % 30 == 20) run.key(moves[tick / 30 % 4], false);
}

std::vector<std::uint32_t> hashesOf(unsigned int ticks) {
    HeadlessGame run(1234);
    run.startLevel();
    std::vector<std::uint32_t> hashes;
    for (unsigned int tick = 0; tick < ticks; ++tick) {
        playPattern(run, tick);
        run.tick();
        hashes.push_back(run.stateHash());
    }
    return hashes;
}

/// Stands still until all lives have gone.
void loseGame(HeadlessGame& run) {
    for (int tick = 0; run.game().level != nullptr && tick < 20000; ++tick)
        run.tick();
    ASSERT_EQ(run.game().level, nullptr) << "nobody has killed the player";
}

} // namespace

TEST(WholeGame, TheSameClockAndKeysGiveTheSameGameAtEveryTick) {
    const std::vector<std::uint32_t> first = hashesOf(1500);
    const std::vector<std::uint32_t> second = hashesOf(1500);
    for (std::size_t tick = 0; tick < first.size(); ++tick)
        ASSERT_EQ(first[tick], second[tick]) << "first difference at tick " << tick;
    EXPECT_EQ(std::adjacent_find(first.begin(), first.end()), first.end())
        << "the hash does not see that the game goes on";
}

TEST(WholeGame, RunsFromTheMenuToGameOverAndIntoASecondGame) {
    HeadlessGame run(77);
    GameBase& game = run.game();
    EXPECT_TRUE(game.mainMenu->shown);
    Marvo::Instance().highScore = 0;
    for (int round = 0; round < 2; ++round) {
        run.startLevel();
        ASSERT_NE(game.level, nullptr) << "round " << round;
        EXPECT_FALSE(game.mainMenu->shown);
        EXPECT_EQ(Marvo::Instance().lives, 2);
        EXPECT_EQ(Marvo::Instance().score, 0U);

        loseGame(run);
        EXPECT_EQ(Marvo::Instance().lives, -1);
        ASSERT_NE(game.mainMenu->gameOverScreen, nullptr);
        EXPECT_FALSE(game.mainMenu->shown);
        run.ticks(2); // the level's entities go

        run.press(SDLK_RETURN);
        run.frame();
        EXPECT_EQ(game.mainMenu->gameOverScreen, nullptr);
        EXPECT_TRUE(game.mainMenu->shown);
        run.ticks(2);
        EXPECT_EQ(Engine::Instance().entities.size(), 1U) << "more than the main menu is left";
    }
}

TEST(WholeGame, EscapeLeadsToTheMenuWithoutAVerdict) {
    HeadlessGame run;
    run.startLevel();
    run.ticks(100);
    run.press(SDLK_ESCAPE);
    run.frame();
    EXPECT_EQ(run.game().level, nullptr);
    EXPECT_TRUE(run.game().mainMenu->shown);
    EXPECT_EQ(run.game().mainMenu->gameOverScreen, nullptr);
}

TEST(WholeGame, EscapeInThePassOfTheLastDeathDoesNotEndTheNextGame) {
    HeadlessGame run(77);
    run.startLevel();
    Marvo::Instance().lives = 0;
    for (int tick = 0; Marvo::Instance().lives == 0 && tick < 20000; ++tick) {
        run.process();
        if (Marvo::Instance().lives < 0) run.press(SDLK_ESCAPE);
        run.frame();
    }
    ASSERT_NE(run.game().mainMenu->gameOverScreen, nullptr) << "the game was lost all the same";
    run.press(SDLK_RETURN);
    run.frame();
    run.startLevel();
    run.ticks(3);
    EXPECT_NE(run.game().level, nullptr);
}

TEST(WholeGame, EndsWhenTheWindowIsClosedAtAnyTick) {
    for (unsigned int tick = 1; tick < 400; tick += 37) {
        HeadlessGame run(tick);
        run.startLevel();
        for (unsigned int i = 0; i < tick; ++i) {
            playPattern(run, i);
            run.tick();
        }
        headless::pushQuit();
        run.frame();
        EXPECT_TRUE(run.isOver()) << "closed at tick " << tick;
    }
}
