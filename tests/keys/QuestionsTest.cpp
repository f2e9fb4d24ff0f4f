#include "keys/Program.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Timer.h"
#include "Framework/input/Joystick.h"
#include "game/Actions.h"
#include "game/GameIdentity.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/pictures/Pictures.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <filesystem>
#include <optional>
#include <vector>

using namespace quorva;
using namespace quorva::input;
using namespace quorva::keys;
using standins::sdl;

namespace {

/// As it is shipped, but for the remarks.
const char* const shipped = "Up, UP\nDown, DOWN\nLeft, LEFT\nRight, RIGHT\nFire Up, W, JOY4\n"
                            "Fire Down, S, JOY1\nFire Left, A, JOY3\nFire Right, D, JOY2\n"
                            "Game Pause, P, JOY8\nMenu Select, RETURN, JOY1\n"
                            "Menu Escape, ESCAPE, JOY7\n";

constexpr int stick = -1; ///< pushed, among buttons

class QuestionsTest : public testing::Test {
protected:
    void SetUp() override {
        introduceGame();
        config::Config::Instance().setDefaults();
        config::Config::Instance().activateConfig();
        sdl().events.clear();
        sdl().axes = {};
        fill("bind1.conf", shipped);
    }
    void TearDown() override {
        program.reset();
        KeyMapper::Instance().keys.clear();
        Joystick::Instance().joysticks.clear();
        std::filesystem::remove("bind1.conf");
        std::filesystem::remove("bind1.conf.bak");
    }

    void start(bool hasPad) {
        Joystick::Instance().joysticks.clear();
        if (hasPad)
            Joystick::Instance().joysticks.push_back(
                std::make_unique<JoystickInfo>(JoystickInfo{"pad", 4, 16, SDL_JoystickOpen(0)}));
        KeyMapper::Instance().keys.clear();
        mapActions();
        program.emplace();
        pass();
    }
    static void pass() { Engine::Instance().update(), Engine::Instance().update(); }
    static void keys(std::initializer_list<int> symbols) {
        for (const int symbol : symbols) {
            standins::pushKey(symbol, true);
            standins::pushKey(symbol, false);
            pass();
        }
    }
    static void buttons(std::initializer_list<int> numbers) {
        for (const int number : numbers) {
            sdl().axes[0][0] = number == stick ? 32767 : 0;
            if (number == stick)
                standins::pushAxisMotion();
            else
                standins::pushButton(number, true);
            pass();
        }
    }
    struct Step {
        int input;
        const char *asked, *note = "";
    };
    /// What is asked for, the key or button that answers, and what is said to it.
    void follow(void (*press)(std::initializer_list<int>), const std::vector<Step>& steps) {
        for (const Step& step : steps) {
            EXPECT_EQ(asked(), step.asked);
            press({step.input});
            EXPECT_EQ(note(), step.note) << step.asked << ", " << step.input;
        }
    }
    std::string asked() const { return program->page->actionWord->word; }
    std::string hint() const { return program->page->hintWord->word; }
    std::string note() const { return program->page->noteWord->word; }

    std::optional<Program> program;
};

} // namespace

TEST_F(QuestionsTest, AsksForEachKeyAndWritesTheAnswers) {
    start(false);
    const std::vector<Step> steps = {
        {SDLK_i, "Up"},
        {SDLK_i, "Down", "I is Up already. Another key, please."},
        {SDLK_F2, "Down", "The game doesn't know this key. Another key, please."},
        {SDLK_k, "Down"},
        {SDLK_a, "Left", "A was Fire Left, which has LEFT now."},
        {SDLK_BACKSPACE, "Right"},
        {SDLK_RETURN, "Left"},
        {SDLK_l, "Right"},
        {SDLK_w, "Fire Up"},
        {SDLK_d, "Fire Down", "D was Fire Right, which has S now."},
        {SDLK_LSHIFT, "Fire Left"},
        {SDLK_RETURN, "Fire Right"},
        {SDLK_TAB, "Game Pause"},
        {SDLK_d, "Menu Select"}, // a gun's: nobody listens to both
        {SDLK_BACKSPACE, "Menu Escape"},
        {SDLK_RETURN, "Menu Select"}, // not the way on here, but the answer
        {SDLK_TAB, "Menu Escape", "TAB is Game Pause already. Another key, please."},
        {SDLK_ESCAPE, "Menu Escape"},
        {SDLK_q, "Save?"},
    };
    follow(keys, steps);
    EXPECT_EQ(hint(), "Return saves it      Backspace goes back      Escape leaves all as it was");
    EXPECT_EQ(contentsOf("bind1.conf"), shipped) << "nothing is written before";
    keys({SDLK_BACKSPACE});
    EXPECT_EQ(hint(), "Return keeps it      Backspace goes back") << "Escape is the answer here";
    keys({SDLK_RETURN, SDLK_RETURN});
    EXPECT_EQ(asked(), "Done");
    EXPECT_EQ(hint(), "Any key leaves");
    EXPECT_EQ(note(), "bind1.conf is written, for the next start. The old file is bind1.conf.bak.");
    EXPECT_EQ(contentsOf("bind1.conf"),
              "Up, I\nDown, K\nLeft, A\nRight, L\nFire Up, W, JOY4\nFire Down, D, JOY1\n"
              "Fire Left, LSHIFT, JOY3\nFire Right, S, JOY2\nGame Pause, TAB, JOY8\n"
              "Menu Select, RETURN, JOY1\nMenu Escape, ESCAPE, JOY7\n");
    EXPECT_FALSE(program->dead);
    keys({SDLK_x});
    EXPECT_TRUE(program->dead);
}

TEST_F(QuestionsTest, AsksForTheButtonsOfAPad) {
    start(true);
    EXPECT_EQ(asked(), "Keyboard or pad?");
    EXPECT_FALSE(program->page->rows[0].word->active);
    buttons({9});
    EXPECT_FALSE(program->page->rows[0].word->active) << "directions take no button";
    const std::vector<Step> steps = {
        {stick, "Fire Up", "The stick moves you without being bound: a button, please."},
        {16, "Fire Up", "The game knows the buttons 1 to 16. Another button, please."},
        {2, "Fire Up", "JOY3 was Fire Left, which has JOY4 now."},
        {6, "Fire Down",
         "JOY7 is Menu Escape already. Another button, please."}, // else two on JOY1
        {4, "Fire Down"},
        {3, "Fire Left"},
        {1, "Fire Right"},
        {9, "Game Pause"},
        {1, "Menu Select",
         "JOY2 is for guns and the pause: in menus, every key would do the same."},
        {4, "Menu Select"}, // a gun's, too
        {8, "Menu Escape"},
    };
    follow(buttons, steps);
    EXPECT_EQ(program->page->promptWord->word, "JOY5 saves it, JOY9 leaves all as it was.");
    buttons({0, 4});
    EXPECT_EQ(contentsOf("bind1.conf"),
              "Up, UP\nDown, DOWN\nLeft, LEFT\nRight, RIGHT\nFire Up, W, JOY3\n"
              "Fire Down, S, JOY5\nFire Left, A, JOY4\nFire Right, D, JOY2\n"
              "Game Pause, P, JOY10\nMenu Select, RETURN, JOY5\nMenu Escape, ESCAPE, JOY9\n");
    buttons({0});
    EXPECT_TRUE(program->dead);
}

TEST_F(QuestionsTest, LeavesAllAsItWas) {
    const auto expectNothingDone = [&](const char* what) {
        EXPECT_TRUE(program->dead) << what;
        EXPECT_EQ(program->questions.saved(), "") << what;
        program.reset();
        EXPECT_EQ(contentsOf("bind1.conf"), shipped) << what;
        EXPECT_EQ(contentsOf("bind1.conf.bak"), no_file) << what;
    };
    start(false);
    keys({SDLK_i, SDLK_k, SDLK_ESCAPE});
    expectNothingDone("after answers");
    start(true);
    keys({SDLK_x, SDLK_i, SDLK_BACKSPACE, SDLK_BACKSPACE, SDLK_BACKSPACE, SDLK_ESCAPE});
    expectNothingDone("back at the choice");
}

TEST_F(QuestionsTest, NoActionLosesWhatItHas) {
    fill("bind1.conf", "Up, F2\nMenu Select, JOY2\nMenu Escape, JOY20\nFire Up, JOY4\n");
    errorsOf([&] { start(true); });
    keys({SDLK_x});
    EXPECT_EQ(program->page->promptWord->word, "Press the key.  It is nothing now.");
    keys({SDLK_DOWN}); // of which nothing could come back
    EXPECT_EQ(note(), "DOWN is Down already. Another key, please.");
    keys({SDLK_u, SDLK_BACKSPACE, SDLK_BACKSPACE});
    EXPECT_EQ(asked(), "Keyboard or pad?");
    buttons({0, 1}); // shared with Menu Select, which isn't there in a game
    EXPECT_EQ(asked(), "Fire Down");
    EXPECT_EQ(program->page->rows[4].word->word, "JOY2");
    keys({SDLK_x});
    EXPECT_EQ(note(), "This is about the pad: a button, please.");
    std::filesystem::remove("bind1.conf");
    std::filesystem::create_directory("bind1.conf");
    keys({SDLK_RETURN, SDLK_RETURN, SDLK_RETURN, SDLK_RETURN, SDLK_RETURN, SDLK_RETURN,
          SDLK_RETURN});
    EXPECT_EQ(asked(), "Sorry");
    EXPECT_EQ(note(), "Can't read bind1.conf. Your keys are as they were.");
    EXPECT_TRUE(program->questions.failed());
}

TEST_F(QuestionsTest, DrawsWhatIsBoundAndWhatIsAskedFor) {
    start(true);
    expectPicture("keys-choice", nextFrame());
    buttons({0});
    keys({SDLK_RETURN, SDLK_RETURN, SDLK_RETURN, SDLK_RETURN});
    expectPicture("keys-pad", nextFrame());
    keys({SDLK_BACKSPACE, SDLK_BACKSPACE, SDLK_BACKSPACE, SDLK_BACKSPACE, SDLK_BACKSPACE});
    keys({SDLK_x, SDLK_SPACE});
    expectPicture("keys-keyboard", nextFrame());
}
