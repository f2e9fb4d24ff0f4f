#include "headless/HeadlessGame.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/Graphics/Stuff/GTransparentBox.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/Marvo.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <memory>

using namespace quorva;
using namespace quorva::menus;

namespace {

class MenusTest : public testing::Test {
protected:
    MenusTest() : main(*run.game().mainMenu) {}

    void press(std::initializer_list<int> keys) {
        for (const int key : keys) {
            run.press(key);
            run.tick();
        }
    }
    ConfigMenu& openConfig() {
        press({SDLK_DOWN, SDLK_RETURN});
        return static_cast<ConfigMenu&>(*main.subMenu);
    }

    headless::HeadlessGame run;
    MainMenu& main;
};

} // namespace

TEST_F(MenusTest, TheSelectionWraps) {
    press({SDLK_UP});
    EXPECT_EQ(main.selection, 4);
    press({SDLK_DOWN});
    EXPECT_EQ(main.selection, 0);
    messages::MenuMove both;
    both.up = both.select = true;
    publish(both); // the new selection is what is chosen
    EXPECT_TRUE(run.isOver());
}

TEST_F(MenusTest, PagesOpenAndCloseBackToTheFirstItem) {
    press({SDLK_DOWN, SDLK_DOWN, SDLK_RETURN});
    ASSERT_NE(main.helpMenu, nullptr);
    press({SDLK_DOWN, SDLK_ESCAPE});
    ASSERT_NE(main.helpMenu, nullptr);
    press({SDLK_RETURN});
    EXPECT_EQ(main.helpMenu, nullptr);
    EXPECT_EQ(main.selection, 0);

    press({SDLK_DOWN, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN});
    ASSERT_NE(main.aboutMenu, nullptr);
    press({SDLK_RETURN, SDLK_UP});
    EXPECT_EQ(Engine::Instance().entities.size(), 1U);
}

TEST_F(MenusTest, TheHighScoreIsReadAtEachReturn) {
    EXPECT_EQ(main.highScoreWord->word.substr(0, 13), "HighScore    ");
    Marvo::Instance().highScore = 4711;
    main.show(menu_load_normal);
    EXPECT_EQ(main.highScoreWord->word, "HighScore    4711");
    Marvo::Instance().highScore = 0;
}

TEST_F(MenusTest, ConfigurationStepsTogglesAndHolds) {
    ConfigMenu& menu = openConfig();
    EXPECT_EQ(menu.getResIndex(), 4);
    press({SDLK_RIGHT, SDLK_RIGHT});
    EXPECT_EQ(menu.values[0]->word, "1024 x 768");
    menu.width = 801;
    menu.moveLeft();
    EXPECT_EQ(menu.values[0]->word, "2048 x 1536");
    menu.moveRight();
    EXPECT_EQ(menu.values[0]->word, "320 x 240");
    menu.width = 801;
    menu.moveRight();
    EXPECT_EQ(menu.values[0]->word, "640 x 480");
    press({SDLK_DOWN, SDLK_LEFT});
    EXPECT_EQ(menu.values[1]->word, "Fullscreen");

    press({SDLK_DOWN});
    std::string volumes;
    run.key(SDLK_LEFT, true);
    for (int tick = 0; tick < 9; ++tick) {
        run.tick();
        volumes += menu.values[2]->word + " ";
    }
    // The key arrives with the second pass: a step at once, five ticks without, then one a tick.
    EXPECT_EQ(volumes.substr(volumes.find("99")), "99 99 99 99 99 99 98 97 ");
    run.key(SDLK_LEFT, false);
    run.ticks(3);
    const std::string still = menu.values[2]->word;
    run.ticks(10);
    EXPECT_EQ(menu.values[2]->word, still);

    menu.collisionAccuracy = 2;
    press({SDLK_DOWN, SDLK_DOWN});
    run.key(SDLK_LEFT, true);
    run.ticks(20);
    EXPECT_EQ(menu.collisionAccuracy, 1) << "not below 1";
    press({SDLK_DOWN, SDLK_RIGHT});
    EXPECT_EQ(menu.values[5]->word, "Yes");
    press({SDLK_ESCAPE});
    EXPECT_EQ(main.subMenu, nullptr);
    EXPECT_TRUE(main.shown);
    EXPECT_FALSE(config::Config::Instance().getFullScreen()) << "dropped";
    EXPECT_FALSE(std::ifstream("game.conf"));
}

TEST_F(MenusTest, SavingWritesActivatesAndRebuildsTheVideo) {
    ConfigMenu& menu = openConfig();
    menu.setNewResolutionStuff(11);
    standins::sdl().modes.clear();
    press({SDLK_UP, SDLK_UP, SDLK_RETURN});
    EXPECT_EQ(config::Config::Instance().getScreenWidth(), 1280);
    ASSERT_EQ(standins::sdl().modes.size(), 1U);
    EXPECT_EQ(standins::sdl().modes[0].height, 800);
    EXPECT_TRUE(std::ifstream("game.conf"));
    EXPECT_EQ(main.background->box.right, 24.0) << "the backdrop fits the new shape";
    EXPECT_TRUE(main.shown);
    EXPECT_GT(main.startWord->font->getBoundingBox("text").right, 0.0) << "fonts are there again";
    config::Config::Instance().setDefaults();
    config::Config::Instance().activateConfig();
    publish(messages::ResetVideo());
}

TEST_F(MenusTest, TheFileComesBackThroughTheMenuAsItWas) {
    auto& settings = config::Config::Instance();
    settings.setScreenWidth(1024);
    settings.setScreenHeight(768);
    settings.setMusicVolume(33);
    settings.setCollisionAccuracy(77);
    settings.setSaveCPU(true);
    settings.setPlaySound(false); // not in the menu
    settings.activateConfig();
    settings.saveConfig();
    const auto text = [] {
        std::ifstream file("game.conf");
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string before = text();
    settings.setDefaults();
    settings.activateConfig();
    settings.file = std::make_unique<config::ConfigFile>("game.conf");
    settings.readFile();
    const ConfigMenu& menu = openConfig();
    EXPECT_EQ(menu.values[0]->word, "1024 x 768");
    EXPECT_EQ(menu.values[2]->word, "33");
    EXPECT_EQ(menu.values[4]->word, "77");
    EXPECT_EQ(menu.values[5]->word, "Yes");
    std::remove("game.conf");
    press({SDLK_UP, SDLK_UP, SDLK_RETURN});
    EXPECT_EQ(text(), before);
    settings.file.reset();
}

TEST_F(MenusTest, ASecondLevelIsRefused) {
    run.startLevel();
    GameLevel* const level = run.game().level;
    EXPECT_EQ(errorsOf([] { publish(messages::LoadLevel()); }),
              "Can't load level. Another level is already open\n");
    EXPECT_EQ(run.game().level, level);
    messages::LoadLevel anew;
    anew.endCurrentLevel = true;
    publish(anew);
    EXPECT_NE(run.game().level, nullptr);
    EXPECT_TRUE(level->dead);
    EXPECT_EQ(Engine::Instance().components.size(), 4U);
}

TEST_F(MenusTest, AMenuOverTheLevelFreezesIt) {
    messages::MenuLoad load;
    load.active = true;
    publish(load);
    EXPECT_EQ(Engine::Instance().components.size(), 3U) << "without a level nothing happens";
    run.startLevel();
    publish(load);
    EXPECT_EQ(main.loadMode, menu_load_pause);
    messages::MenuUnLoad unload;
    unload.active = true;
    publish(unload);
    EXPECT_FALSE(main.shown);
    const std::uint32_t tick = run.game().level->tickCount;
    run.ticks(10);
    EXPECT_EQ(run.game().level->tickCount, tick) << "until the pause key";
    run.press(SDLK_p);
    run.ticks(10);
    EXPECT_GT(run.game().level->tickCount, tick);
}
