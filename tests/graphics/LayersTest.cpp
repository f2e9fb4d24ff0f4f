#include "tests/support/FieldTest.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Managers/FontManager.h"
#include "tests/pictures/Pictures.h"
#include "tests/support/Errors.h"
#include "tests/support/Settings.h"

#include <csignal>

using namespace quorva;
using namespace quorva::graphics;
using standins::glRecorder;

namespace {

/// Writes down when it is drawn.
struct Mark : RenderInterface {
    Mark(std::string& trace_, char name_) : trace(trace_), name(name_) {}
    void render() override { trace += name; }
    std::string& trace;
    char name;
};

struct Subject : Entity {
    void process() override {}
    void update() override {}
};

} // namespace

TEST(Words, AlignByTheTextLastSet) {
    GWord word;
    EXPECT_EQ(callsOf([&] { word.render(); }), "") << "without a font";
    word.setWord("text");
    EXPECT_EQ(word.bounds.far, -1.0) << "left alone without a font";
    word.font = &FontManager::Instance().getV("Menu Font");
    word.setWord("0");
    word.word = "1234567890"; // grows to the right of where "0" stood
    word.bounds = primitives::Box(1, 0, 0.25, 4.25);
    const struct {
        int alignment;
        double shift;
    } cases[] = {{ALIGN_LEFT, 0}, {ALIGN_RIGHT, -4.25}, {ALIGN_CENTRE, -2}};
    for (const auto& c : cases) {
        word.alignment = c.alignment;
        callsOf([&] { word.render(); });
        const auto moves = glRecorder().callsTo("glTranslatef");
        EXPECT_EQ(c.shift == 0 ? 0 : moves[1].arguments[0], c.shift) << c.alignment;
    }
    Font broken(FR_POLYGON, "fonts/LICENSE-Vera.txt");
    word.font = &broken;
    EXPECT_EQ(callsOf([&] { word.render(); }).find("glBegin"), std::string::npos);
}

TEST_F(FieldTest, FramesHoldWhatWasActiveAsItCame) {
    Renderer& renderer = *run.game().renderer;
    std::string trace;
    Subject subject;
    for (const char name : {'a', 'b'})
        subject.getGraphics()->things[subject.graphics->createNewLayer()]->addGraphic(
            new Mark(trace, name));
    RenderableThing* const late = subject.graphics->things.back();
    late->active = false;
    renderer.removeAllEntities();
    renderer.addEntity(&subject);
    late->activate(); // too late
    renderer.update();
    EXPECT_EQ(trace, "a");
    renderer.removeEntity(&subject);
    EXPECT_EQ(callsOf([&] { renderer.update(); }), "glClear COLOUR+DEPTH\nSDL_GL_SwapBuffers\n");
}

TEST(BlendModes, AnyNumberIsKeptButOnlyTheFirstReachesGL) {
    GLFunctions& functions = draw::i_fun;
    for (const int number : {0, 1, 7}) {
        const auto mode = static_cast<BlendModeEnum>(number);
        callsOf([&] { functions.setBlendMode(mode); });
        EXPECT_EQ(glRecorder().calls.size(), number == 0 ? 1U : 0U);
        functions.saveBlendMode();
        functions.setBlendMode(BLEND_STANDARD);
        EXPECT_EQ(callsOf([&] { functions.restoreBlendMode(); }), "");
        EXPECT_EQ(functions.currentBlendMode, mode);
    }
}

TEST(Words, AFontOfAnUnknownModeEndsTheProcess) {
    Font font(static_cast<FontRenderModeE>(5));
    EXPECT_EXIT(font.loadFont("fonts/KovText.ttf"), testing::KilledBySignal(SIGABRT),
                "^Unknown font type for: fonts/KovText.ttf\n$");
}

TEST_F(FieldTest, ARefusedModeFallsBackButKeepsTheSettings) {
    activate({{"ScreenWidth", 1280}, {"ScreenHeight", 800}, {"FullScreen", 1}});
    standins::sdl().modes.clear();
    standins::sdl().refusedModes = 1;
    EXPECT_EQ(errorsOf([] { publish(messages::ResetVideo()); }),
              "Couldn't set the video mode: no such mode\n");
    ASSERT_EQ(standins::sdl().modes.size(), 2U);
    EXPECT_EQ(standins::sdl().modes[1].width, 800);
    EXPECT_EQ(standins::sdl().modes[1].depth, 32);
    EXPECT_EQ(standins::sdl().modes[1].flags, std::uint32_t{SDL_OPENGL | SDL_FULLSCREEN});
    EXPECT_EQ(Camera::Instance().right, 24.0) << "by the configured size";
    standins::sdl().refusedModes = 0;
}

TEST(Camera, TakesTheFieldFromTheShapeOfTheScreen) {
    auto& settings = config::Config::Instance();
    auto& table = settings.getConfigValues();
    const struct {
        int width, height;
        double right, top;
        const char* errors;
    } cases[] = {
        {540, 960, 11.25, 20, ""},
        {500, 800, 11.25, 18, ""},
        {600, 800, 11.25, 15, ""},
        {700, 800, 20, 15, ""},
        {2560, 1080, 26.666660308837891, 15, "Can't guess screen ratio - using 16x9\n"},
    };
    CameraClass camera;
    for (const auto& c : cases) {
        table.intValues[0].value = c.width; // some lie past the range of the settings
        table.intValues[1].value = c.height;
        settings.activateConfig();
        EXPECT_EQ(errorsOf([&] { camera.setupProjection(); }), c.errors);
        EXPECT_DOUBLE_EQ(camera.right, c.right) << c.width << 'x' << c.height;
        EXPECT_DOUBLE_EQ(camera.left, -c.right) << c.width << 'x' << c.height;
        EXPECT_DOUBLE_EQ(camera.top, c.top) << c.width << 'x' << c.height;
    }
    EXPECT_EQ(camera.menuTop, 15.0);
    EXPECT_EQ(camera.menuLeft, -11.25);
}
