#include "headless/HeadlessGame.h"

#include "Framework/Engine.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/GameOverScreen.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "platform/standins/VirtualSDL.h"

#include <gtest/gtest.h>

using namespace quorva;
using headless::HeadlessGame;

namespace {

/// Stands still until all lives have gone.
void loseGame(HeadlessGame& run) {
    for (int tick = 0; run.game().level != nullptr && tick < 20000; ++tick)
        run.tick();
    ASSERT_EQ(run.game().level, nullptr) << "nobody has killed the player";
}

} // namespace

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
