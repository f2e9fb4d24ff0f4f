#include "Framework/MessageReceiver.h"
#include "Framework/input/InputHandler.h"
#include "Framework/input/Joystick.h"
#include "Framework/input/KeyMapper.h"
#include "Framework/input/MenuInputHandler.h"
#include "game/Actions.h"
#include "headless/HeadlessGame.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/Settings.h"

#include <map>
#include <sstream>

using namespace quorva;
using namespace quorva::input;
using standins::pushAxisMotion;
using standins::pushButton;
using standins::pushKey;
using standins::sdl;

namespace {

/// Writes down what the handlers publish.
struct Recorder : MessageReceiver<messages::PlayerInput, messages::MenuMove, messages::EndGame,
                                  messages::EndLevel, messages::LiteralCharacter> {
    Recorder() { subscribeToAll(); }

    void receiveMessage(const messages::PlayerInput* m) override {
        out << m->move.x << ',' << m->move.y;
        if (m->fire.x != 0 || m->fire.y != 0) out << " fire " << m->fire.x << ',' << m->fire.y;
        out << (m->pause ? " pause; " : "; ");
    }
    void receiveMessage(const messages::MenuMove* m) override {
        out << (m->select   ? "select"
                : m->escape ? "escape"
                : m->up     ? "up"
                : m->down   ? "down"
                : m->left   ? "left"
                : m->right  ? "right"
                            : "none")
            << "; ";
    }
    void receiveMessage(const messages::EndGame*) override { out << "EndGame; "; }
    void receiveMessage(const messages::EndLevel*) override { out << "EndLevel; "; }
    void receiveMessage(const messages::LiteralCharacter* m) override {
        out << m->character << "; ";
    }
    std::string take() {
        const std::string text = out.str();
        out.str("");
        return text;
    }
    std::ostringstream out;
};

class InputTest : public testing::Test {
protected:
    void SetUp() override {
        sdl().events.clear();
        keys.keys.clear();
        EXPECT_EQ(errorsOf(&mapActions), "Can't read bind1.conf\n");
        JoystickClass& joystick = Joystick::Instance();
        joystick.joysticks.clear();
        sdl().axes = {};
        joystick.joysticks.push_back(
            std::make_unique<JoystickInfo>(JoystickInfo{"stick", 4, 16, SDL_JoystickOpen(0)}));
        joystick.sensitivity = 3200;
    }
    void TearDown() override {
        keys.keys.clear();
        Joystick::Instance().joysticks.clear();
    }
    std::string play(Component& handler) {
        handler.update();
        return recorder.take();
    }
    std::string stick(Component& handler, int x, int y) {
        sdl().axes[0] = {static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0, 0};
        pushAxisMotion();
        return play(handler);
    }
    static std::string heldBy(const InputHandler& h) {
        return std::string(h.rightHeld ? " right" : "") + (h.leftHeld ? " left" : "") +
               (h.upHeld ? " up" : "") + (h.downHeld ? " down" : "");
    }
    std::string bind(const std::string& text) {
        fill("bind1.conf", text);
        return errorsOf([&] { keys.readBindFiles(); });
    }

    KeyMapperClass& keys = KeyMapper::Instance();
    Recorder recorder;
};

} // namespace

TEST_F(InputTest, NewestOfTwoOppositeKeysWinsAndFallsBack) {
    InputHandler handler;
    const struct {
        int key;
        bool down;
        const char* published;
    } steps[] = {{SDLK_LEFT, false, ""}, // held since before
                 {SDLK_LEFT, true, "-1,0; "},   {SDLK_RIGHT, true, "1,0; "},
                 {SDLK_RIGHT, false, "-1,0; "}, {SDLK_RIGHT, true, "1,0; "},
                 {SDLK_LEFT, false, "1,0; "},   {SDLK_RIGHT, false, "0,0; "},
                 {SDLK_UP, true, "0,1; "},      {SDLK_DOWN, true, "0,-1; "},
                 {SDLK_DOWN, false, "0,1; "},   {SDLK_UP, false, "0,0; "}};
    for (const auto& step : steps) {
        pushKey(step.key, step.down);
        EXPECT_EQ(play(handler), step.published) << step.key << (step.down ? " down" : " up");
    }
}

TEST_F(InputTest, OneKeyMayDoTwoThingsOnceEachAndAClosedWindowLeavesTheRest) {
    InputHandler handler;
    keys.keys[7]->key = SDLK_UP; // to fire up, too
    pushKey(SDLK_UP, true);
    standins::pushQuit();
    pushKey(SDLK_RIGHT, true);
    EXPECT_EQ(play(handler), "0,1 fire 0,1; EndGame; ");
    EXPECT_EQ(play(handler), "1,1; ") << "the rest of the queue, and no second shot";
}

TEST_F(InputTest, AxesCountBeyondTheirThresholdUnalike) {
    InputHandler handler;
    const struct {
        int x, y;
        const char* published; ///< and what is held from then on: only keys clear it
    } cases[] = {{3200, 3200, "0,0; "},
                 {-3200, -3200, "0,0; "},
                 {3201, 0, "0.0976897,0;  right"},
                 {-3201, 0, "-0.0976897,0;  right left"},
                 {0, -3201, "0,3.05185e-05;  right left up"},
                 {0, 32767, "0,-3.05185e-05;  right left up down"},
                 {-32768, 0, "-1.00003,0;  right left up down"}};
    for (const auto& c : cases) {
        const std::string published = stick(handler, c.x, c.y);
        EXPECT_EQ(published + heldBy(handler), c.published);
    }
}

TEST_F(InputTest, EachPlayersAxesAreSetByTheirOwnFunctions) {
    using H = InputHandler;
    H handler;
    handler.xDown(3, 32767);
    handler.yDown(3, -32767);
    handler.xDown2(3, -32767);
    handler.yDown2(3, 32767);
    publish(handler.playerInputs[3]);
    EXPECT_EQ(recorder.take(), "1,-1 fire -1,1; ");
    for (const auto up : {&H::xUp, &H::yUp, &H::xUp2, &H::yUp2})
        (handler.*up)(3);
    publish(handler.playerInputs[3]);
    EXPECT_EQ(recorder.take(), "0,0; ");
}

TEST_F(InputTest, MenusTakeAnyKeyForButtonOneAndLittleOfAReleasedOne) {
    MenuInputHandler handler;
    for (const int key : {SDLK_RIGHT, SDLK_UP, SDLK_5})
        pushKey(key, false);
    pushButton(2, false);
    EXPECT_EQ(play(handler), "none; ");
    keys.keys[0]->jsButton = 1; // JOY2: every key press carries a 1 in that place
    pushKey(SDLK_UP, true);
    EXPECT_EQ(play(handler), "up; select; ");
}

TEST_F(InputTest, MenusStepByTheStickWithADelayUpAndDownAlone) {
    MenuInputHandler handler;
    EXPECT_EQ(stick(handler, 0, -3200), "");
    EXPECT_EQ(stick(handler, 0, -3201), "up; ");
    EXPECT_EQ(stick(handler, 0, -9000), "") << "delayed";
    for (int i = 0; i < 4; ++i)
        handler.process();
    EXPECT_EQ(stick(handler, 0, 9000), "");
    handler.process();
    EXPECT_EQ(stick(handler, 0, 9000), "down; ");
    EXPECT_EQ(stick(handler, -9000, 0), "left; ");
    EXPECT_EQ(stick(handler, -9000, 0), "") << "nothing new";
    EXPECT_EQ(stick(handler, -9001, 0), "left; ");
    EXPECT_EQ(stick(handler, 9001, 0), "right; ");

    activate({{"NoUseJoystick", 0}});
    EXPECT_EQ(stick(handler, 9002, 9002), "");
    pushButton(8, true);
    EXPECT_EQ(play(handler), "escape; ");
}

TEST_F(InputTest, KnowsTheWordsOfKeysAndButtons) {
    for (const auto& [word, key] : {std::pair{"ENTER", SDLK_RETURN},
                                    {"z", SDLK_z},
                                    {"NUM0", SDLK_KP0},
                                    {"num=", SDLK_KP_EQUALS},
                                    {"F1", SDLK_F1},
                                    {"RWINDOWS", SDLK_RSUPER}})
        EXPECT_EQ(keyFromWord(word), key) << word;
    std::size_t known = 0;
    for (QuorvaKey key = 0; key <= unknown_key; ++key) {
        const std::string word = wordFromKey(key);
        if (word.empty()) continue;
        ++known;
        EXPECT_EQ(keyFromWord(word), key) << word;
    }
    EXPECT_EQ(known, 5 + 10 + 1 + 26 + 27 + 10U);
    EXPECT_EQ(wordFromKey(SDLK_RETURN), "RETURN") << "not ENTER";
    for (const std::string word : {"F2", "JOY", ":", "[", "@", "/"})
        EXPECT_EQ(errorsOf([&] { EXPECT_EQ(keyFromWord(word), unknown_key) << word; }),
                  "Key not found: " + word + "\n");
    for (int button = 0; button < 16; ++button)
        EXPECT_EQ(jsbuttonFromWord(wordFromJsbutton(static_cast<QuorvaJKey>(button))), button);
    EXPECT_EQ(wordFromJsbutton(15), "JOY16");
    EXPECT_EQ(wordFromJsbutton(16), "");
    for (const char* word : {"JOY0", "JOY17", "joy1", "JOY"})
        EXPECT_EQ(jsbuttonFromWord(word), no_button) << word;
}

TEST_F(InputTest, BindsByFile) {
    EXPECT_EQ(bind("Unknown\x1b[2J Action, P\nUp, joy1\nDown, x, y\nLeft, JOY99\nRight, a, b, c\n"),
              "Couldn't find key: Unknown\\x1b[2J Action\nKey not found: JOY1\n");
    EXPECT_EQ(keys.getButton("Up", 0)->key, unknown_key);
    EXPECT_EQ(keys.getButton("Down", 0)->key, SDLK_y) << "the second word is in force";
    EXPECT_EQ(keys.getButton("Left", 0)->jsButton, no_button);
    EXPECT_EQ(keys.getButton("Right", 0)->key, SDLK_RIGHT) << "four fields are none";
}

TEST_F(InputTest, EachKeyAndButtonDoesItsOwnAloneByDefaultAndByTheShippedFile) {
    using Own = std::pair<std::string, std::string>; // in menus, in games
    std::map<int, Own> defaultButtons = {{2, {"select; ", ""}}, {8, {"escape; ", "EndLevel; "}}};
    std::map<int, Own> shippedButtons = {
        {0, {"select; ", "0,0 fire 0,-1; "}}, // South
        {1, {"", "0,0 fire 1,0; "}},          // East; in menus it is the number that keys match
        {2, {"", "0,0 fire -1,0; "}},         // West
        {3, {"", "0,0 fire 0,1; "}},          // North
        {6, {"escape; ", "EndLevel; "}},      // Back
        {7, {"", "0,0 pause; "}},             // Start
    };
    std::map<int, Own> symbols = {
        {SDLK_RETURN, {"select; ", ""}},   {SDLK_ESCAPE, {"escape; ", "EndLevel; "}},
        {SDLK_UP, {"up; ", "0,1; "}},      {SDLK_DOWN, {"down; ", "0,-1; "}},
        {SDLK_LEFT, {"left; ", "-1,0; "}}, {SDLK_RIGHT, {"right; ", "1,0; "}},
        {SDLK_w, {"", "0,0 fire 0,1; "}},  {SDLK_s, {"", "0,0 fire 0,-1; "}},
        {SDLK_a, {"", "0,0 fire -1,0; "}}, {SDLK_d, {"", "0,0 fire 1,0; "}},
        {SDLK_p, {"", "0,0 pause; "}},
    };
    for (int i = SDLK_0; i <= SDLK_9; ++i) // a digit only says which it is
        symbols[i].first = symbols[i - SDLK_0 + SDLK_KP0].first = {static_cast<char>(i), ';', ' '};

    const auto expectEach = [&](auto push, int count, std::map<int, Own>& owns) {
        for (int i = 0; i < count; ++i) {
            MenuInputHandler menu;
            InputHandler game;
            push(i, true);
            EXPECT_EQ(play(menu), owns[i].first) << i;
            push(i, true);
            EXPECT_EQ(play(game), owns[i].second) << i;
        }
    };
    keys.keys.clear();
    EXPECT_EQ(errorsOf([] { const headless::HeadlessGame run; }), "Can't read bind1.conf\n");
    expectEach(pushButton, 16, defaultButtons);
    expectEach(pushKey, SDLK_LAST, symbols);
    EXPECT_EQ(bind(contentsOf(KOV_SOURCE_DIR "/packaging/bind1.conf")), "");
    expectEach(pushButton, 16, shippedButtons);
    expectEach(pushKey, SDLK_LAST, symbols);
}

TEST_F(InputTest, JoysticksThatDoNotOpenAreLeftOut) {
    sdl().joysticks = 3;
    sdl().refusedJoystick = 0;
    sdl().axes[1] = {7, 8, 9, 10};
    JoystickClass sticks;
    EXPECT_EQ(sticks.joysticks.size(), 2U);
    EXPECT_EQ(sticks.getXAxis() + sticks.getYAxis() + sticks.get2ndXAxis() + sticks.get2ndYAxis(),
              34);
    sticks.changePlayer1ActiveJoystick(1);
    EXPECT_EQ(sticks.getXAxis(), 0);
    EXPECT_EQ(errorsOf([&] { sticks.changePlayer1ActiveJoystick(2); }),
              "Joystick: 2 not found.  Activating joystick 0\n");
    EXPECT_EQ(sticks.getXAxis(), 7);
    sdl().joysticks = 0;
    sdl().refusedJoystick = -1;
    EXPECT_FALSE(JoystickClass().joystickPresent());
}
