#include "tests/support/FieldTest.h"

#include "Framework/Graphics/Stuff/GTransparentBox.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Timer.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameOverScreen.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/Settings.h"

using namespace quorva;
using namespace quorva::menus;

namespace {

class MenusTest : public testing::Test {
protected:
    MenusTest() : main(*run.game().mainMenu) {}

    void press(std::initializer_list<int> keys) { ::press(run, keys); }
    ConfigMenu& openConfig() {
        press({SDLK_DOWN, SDLK_RETURN});
        return static_cast<ConfigMenu&>(*main.subMenu);
    }
    static std::vector<std::string> wordsOf(const ConfigMenu& menu) {
        std::vector<std::string> words;
        for (const auto* value : menu.values)
            words.push_back(value->word);
        return words;
    }

    headless::HeadlessGame run;
    MainMenu& main;
};

} // namespace

TEST_F(MenusTest, TheSelectionWrapsToTheExit) {
    press({SDLK_UP, SDLK_RETURN});
    EXPECT_TRUE(run.isOver());
}

TEST_F(MenusTest, TheHighScoreIsReadAtEachReturn) {
    Marvo::Instance().highScore = 4711;
    main.show(menu_load_normal);
    EXPECT_EQ(main.highScoreWord->word, "HighScore    4711");
    Marvo::Instance().highScore = 0;
}

TEST_F(MenusTest, EachRowOfTheConfigurationChangesItsOwnSettingWithinItsBounds) {
    ConfigMenu& menu = openConfig();
    using Slider = std::uint16_t ConfigMenu::*;
    const struct {
        ConfigMenu::Row row;
        int key; ///< held for a step at once, five ticks without, then one a tick
        const char* before;
        const char* after;
        Slider slider = nullptr; ///< that is set to what is before
    } cases[] = {
        {ConfigMenu::row_resolution, SDLK_LEFT, "800 x 600", "720 x 576"},
        {ConfigMenu::row_resolution, SDLK_RIGHT, "720 x 576", "800 x 600"},
        {ConfigMenu::row_fullscreen, SDLK_LEFT, "Windowed", "Fullscreen"},
        {ConfigMenu::row_music_volume, SDLK_RIGHT, "47", "50", &ConfigMenu::musicVolume},
        {ConfigMenu::row_music_volume, SDLK_LEFT, "1", "0", &ConfigMenu::musicVolume},
        {ConfigMenu::row_fx_volume, SDLK_RIGHT, "99", "100", &ConfigMenu::fxVolume},
        {ConfigMenu::row_fx_volume, SDLK_LEFT, "50", "47", &ConfigMenu::fxVolume},
        {ConfigMenu::row_accuracy, SDLK_RIGHT, "999", "1000", &ConfigMenu::collisionAccuracy},
        {ConfigMenu::row_accuracy, SDLK_LEFT, "2", "1", &ConfigMenu::collisionAccuracy},
        {ConfigMenu::row_save_cpu, SDLK_RIGHT, "No", "Yes"},
    };
    for (const auto& c : cases) {
        while (menu.selection != c.row)
            press({SDLK_DOWN});
        if (c.slider != nullptr) menu.*c.slider = static_cast<std::uint16_t>(std::stoi(c.before));
        run.tick();
        std::vector<std::string> words = wordsOf(menu);
        EXPECT_EQ(words[c.row], c.before);
        run.key(c.key, true);
        run.ticks(8);
        run.key(c.key, false);
        run.ticks(3);
        words[c.row] = c.after; // and all others stay
        EXPECT_EQ(wordsOf(menu), words) << c.row << ", key " << c.key;
    }
    menu.selection = ConfigMenu::row_resolution;
    menu.width = 801; // is in no table: steps like the first
    menu.moveLeft();
    EXPECT_EQ(wordsOf(menu)[0], "2048 x 1536");
    press({SDLK_ESCAPE});
    EXPECT_TRUE(main.shown);
    EXPECT_FALSE(config::Config::Instance().getFullScreen()) << "dropped";
    EXPECT_EQ(contentsOf("game.conf"), no_file);
}

TEST_F(MenusTest, SavingActivatesAndRebuildsTheVideo) {
    config::Config::Instance().setPlaySound(false); // not in the menu
    ConfigMenu& menu = openConfig();
    menu.setNewResolutionStuff(11);
    for (const auto row : {ConfigMenu::row_fullscreen, ConfigMenu::row_save_cpu}) {
        menu.selection = row;
        menu.moveRight();
    }
    menu.selection = ConfigMenu::row_resolution;
    menu.musicVolume = 33;
    menu.fxVolume = 44;
    menu.collisionAccuracy = 77;
    standins::sdl().modes.clear();
    const Count<messages::ResetAudio> audioResets;
    press({SDLK_UP, SDLK_UP, SDLK_RETURN});
    EXPECT_EQ(audioResets.count, 1);
    ASSERT_EQ(standins::sdl().modes.size(), 1U);
    EXPECT_EQ(standins::sdl().modes[0].height, 800);
    EXPECT_EQ(main.background->box.right, 24.0) << "the backdrop fits the new shape";
    EXPECT_TRUE(main.shown);
    EXPECT_GT(main.startWord->font->getBoundingBox("text").right, 0.0) << "fonts are there again";
    const std::string saved = contentsOf("game.conf");
    for (const char* line : {"Width = 1280", "Height = 800", "FullScreen = 1", "MusicVolume = 33",
                             "EffectsVolume = 44", "Accuracy = 77", "CPU = 1", "PlaySound = 0"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    EXPECT_EQ(wordsOf(openConfig()),
              (std::vector<std::string>{"1280 x 800", "Fullscreen", "33", "44", "77", "Yes"}));
}

TEST_F(MenusTest, NothingAsksForAnotherLevelOrAMenuOverOneButTheyAreKnown) {
    messages::MenuLoad load;
    load.active = true;
    run.startLevel();
    publish(load);
    EXPECT_TRUE(main.shown && Timer::Instance().paused);
    messages::MenuUnLoad unload;
    unload.active = true;
    publish(unload);
    EXPECT_FALSE(main.shown);
    GameLevel* const level = run.game().level;
    messages::LoadLevel anew;
    EXPECT_EQ(errorsOf([&] { publish(anew); }),
              "Can't load level. Another level is already open\n");
    EXPECT_EQ(run.game().level, level);
    anew.endCurrentLevel = true;
    publish(anew);
    EXPECT_TRUE(level->dead);
    EXPECT_NE(run.game().level, nullptr);
}

TEST_F(MenusTest, EscapeInThePassOfTheLastDeathDoesNotEndTheNextGame) {
    run.startLevel();
    Marvo::Instance().lives = 0;
    for (int tick = 0; Marvo::Instance().lives == 0 && tick < 20000; ++tick) {
        run.process();
        if (Marvo::Instance().lives < 0) run.press(SDLK_ESCAPE);
        run.frame();
    }
    ASSERT_NE(main.gameOverScreen, nullptr) << "the game was lost all the same";
    run.press(SDLK_RETURN);
    run.frame();
    run.startLevel();
    run.ticks(3);
    EXPECT_NE(run.game().level, nullptr);
}
