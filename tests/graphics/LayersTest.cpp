#include "tests/support/FieldTest.h"

#include "Framework/Config.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/Graphics/Stuff/GGrid.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Graphics/Stuff/GSlideBar.h"
#include "Framework/Graphics/Stuff/GTransparentBox.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Managers/FontManager.h"
#include "game/GCheveron.h"
#include "game/GTriangle.h"
#include "platform/standins/GLRecorder.h"
#include "tests/support/Errors.h"

#include <csignal>

using namespace quorva;
using namespace quorva::graphics;
using standins::glRecorder;

namespace {

/// What a drawing sends, a call a line.
template <class Draw>
std::string recordingOf(const Draw& draw) {
    glRecorder().start();
    draw();
    glRecorder().stop();
    return glRecorder().text();
}

template <class T>
std::size_t callsOf(T& shape, const std::string& name) {
    recordingOf([&] { shape.render(); });
    return glRecorder().callsTo(name).size();
}

const std::string no_turn = "glRotatef 0 1 0 0\n";

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

TEST(Shapes, BeginWithColourPlaceTurnAndScale) {
    GLine line;
    line.position = math::Point(1, 2, 3);
    math::rotate(90, math::z_axis, line.rotation);
    line.setScale(2);
    line.setColour1(&colours::orange);
    line.end = math::Point(4, 0, 0);
    line.lineWidth = 4;
    EXPECT_EQ(recordingOf([&] { line.render(); }),
              "glColor4fv 1 0.5 0 1\nglTranslatef 1 2 3\nglRotatef 90 0 0 1\nglScalef 2 2 2\n"
              "glLineWidth 2.5\nglBegin 1\nglVertex3f 0 0 0\nglVertex3f 4 0 0\nglEnd\n");
    line.setColour1(nullptr);
    EXPECT_EQ(callsOf(line, "glColor4fv"), 0U) << "it takes the colour of the shape before it";
}

TEST(Shapes, DrawTheirFigures) {
    const std::string head = "glTranslatef 0 0 0\n" + no_turn + "glScalef 1 1 1\n";
    const std::string quad = "glBegin 7\nglVertex2f -1 -2\nglVertex2f 3 -2\nglVertex2f 3 4\n"
                             "glVertex2f -1 4\nglEnd\n";
    GTransparentBox box;
    box.box = primitives::Box(4, -2, -1, 3);
    EXPECT_EQ(recordingOf([&] { box.render(); }),
              head + "glDisable 2929\n" + quad + "glEnable 2929\n");

    GGrid grid;
    grid.divisions = 0;
    grid.box = box.box;
    EXPECT_EQ(recordingOf([&] { grid.render(); }),
              head + "glBegin 1\nglVertex2f -1 -2\nglVertex2f -1 4\nglVertex2f -1 -2\n"
                     "glVertex2f 3 -2\nglEnd\n");

    GTriangle triangle;
    EXPECT_EQ(callsOf(triangle, "glVertex3f"), 3U);
    triangle.deathMode = true;
    EXPECT_EQ(callsOf(triangle, "glVertex3f"), 6U);

    GCheveron chevron;
    chevron.tip = math::Point(0, 1, 0);
    EXPECT_EQ(recordingOf([&] { chevron.render(); }),
              head + "glLineWidth 1\nglBegin 3\nglVertex3f 0 0 0\nglVertex3f 0 1 0\n"
                     "glVertex3f 0 0 0\nglEnd\n");

    float value = 0.5F;
    GSlideBar bar;
    bar.halfWidth = 2;
    bar.value = &value;
    for (const float knob : {0.0F, 0.5F, 1.0F}) {
        value = knob;
        recordingOf([&] { bar.render(); });
        EXPECT_EQ(glRecorder().callsTo("glTranslatef").back().arguments[0], 4 * (knob - 0.5));
    }
}

TEST(Words, AlignByTheTextLastSet) {
    GWord word;
    EXPECT_EQ(recordingOf([&] { word.render(); }), "") << "without a font";
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
        recordingOf([&] { word.render(); });
        const auto moves = glRecorder().callsTo("glTranslatef");
        EXPECT_EQ(c.shift == 0 ? 0 : moves[1].arguments[0], c.shift) << c.alignment;
    }
    Font broken(FR_POLYGON, "fonts/LICENSE-Vera.txt");
    word.font = &broken;
    word.setWord("text");
    EXPECT_EQ(word.bounds.right, 0.0);
    EXPECT_EQ(callsOf(word, "glBegin"), 0U) << "a font that failed draws nothing";
}

TEST(Layers, DrawWhatIsActivePlacedAndFlatInMenus) {
    std::string trace;
    RenderableThing layer;
    auto* const first = new Mark(trace, 'a');
    layer.addGraphic(first);
    layer.addGraphic(new Mark(trace, 'b'));
    first->deactivate();
    EXPECT_EQ(recordingOf([&] { layer.render(); }), "glPushMatrix\nglPopMatrix\n");
    const math::Point place(1, 2, 0);
    layer.position = &place;
    EXPECT_EQ(recordingOf([&] { layer.render(); }),
              "glPushMatrix\nglTranslatef 1 2 0\nglPushMatrix\nglPopMatrix\nglPopMatrix\n");
    EXPECT_EQ(trace, "bb");
    for (const int order : {6, 7, 8, 9, 10}) {
        layer.layer = order;
        const bool menu = order >= 7 && order <= 9;
        EXPECT_EQ(callsOf(layer, "glOrtho"), menu ? 2U : 0U) << order;
        EXPECT_EQ(glRecorder().callsTo("glDisable").size(), menu ? 1U : 0U) << order;
    }
    layer.deactivate();
    EXPECT_EQ(recordingOf([&] { layer.render(); }), "");
}

TEST_F(FieldTest, FramesAreDrawnInOrderOfLayerAndDepth) {
    Renderer& renderer = *run.game().renderer;
    std::string trace;
    Subject subject;
    const struct {
        char name;
        int layer;
        float depth;
        bool active;
    } layers[] = {{'d', 5, -3, true},
                  {'b', 4, 0, true},
                  {'a', 4, -10, true},
                  {'x', 4, 0, false},
                  {'c', 4, 0.1F, true}};
    for (const auto& row : layers) {
        const unsigned short index = subject.getGraphics()->createNewLayer();
        RenderableThing* const thing = subject.graphics->things[index];
        thing->addGraphic(new Mark(trace, row.name));
        thing->layer = row.layer;
        thing->depth = row.depth;
        thing->active = row.active;
    }
    renderer.removeAllEntities();
    renderer.addEntity(&subject);
    subject.graphics->things[3]->activate(); // too late
    renderer.update();
    EXPECT_EQ(trace, "abcd");
    renderer.removeEntity(&subject);
    const std::uint64_t swaps = standins::sdl().swaps;
    EXPECT_EQ(recordingOf([&] { renderer.update(); }), "glClear 16640\n");
    EXPECT_EQ(standins::sdl().swaps, swaps + 1);
}

TEST_F(FieldTest, TwoFramesOfOneStateAreTheSame) {
    for (int i = 0; i < 50; ++i)
        layAt(i, i);
    run.frame(); // the fonts make their lists
    run.press(SDLK_p);
    run.frame();
    const std::string first = recordingOf([&] { run.frame(); });
    EXPECT_EQ(recordingOf([&] { run.frame(); }), first);
    EXPECT_GT(run.game().renderer->renderables.size(), 50U);
}

TEST(BlendModes, AnyNumberIsKeptButOnlyTheFirstReachesGL) {
    GLFunctions& functions = draw::i_fun;
    for (const int number : {0, 1, 7}) {
        const auto mode = static_cast<BlendModeEnum>(number);
        recordingOf([&] { functions.setBlendMode(mode); });
        EXPECT_EQ(glRecorder().calls.size(), number == 0 ? 1U : 0U);
        functions.saveBlendMode();
        functions.setBlendMode(BLEND_STANDARD);
        EXPECT_EQ(recordingOf([&] { functions.restoreBlendMode(); }), "");
        EXPECT_EQ(functions.currentBlendMode, mode);
    }
}

TEST(Words, AFontOfAnUnknownModeEndsTheProcess) {
    Font font(static_cast<FontRenderModeE>(5));
    EXPECT_EXIT(font.loadFont("fonts/KovText.ttf"), testing::KilledBySignal(SIGABRT),
                "^Unknown font type for: fonts/KovText.ttf\n$");
}

TEST_F(FieldTest, AnOrdinaryFrameLeavesTheMatrixStackAsItWas) {
    run.ticks(50);
    recordingOf([&] { run.frame(); });
    EXPECT_EQ(glRecorder().callsTo("glPushMatrix").size(),
              glRecorder().callsTo("glPopMatrix").size());
    EXPECT_EQ(glRecorder().callsTo("glBegin").size(), glRecorder().callsTo("glEnd").size());
    EXPECT_GT(glRecorder().callsTo("glBegin").size(), 15U);
}

TEST_F(FieldTest, ARefusedModeFallsBackButKeepsTheSettings) {
    auto& settings = config::Config::Instance();
    settings.setScreenWidth(1280);
    settings.setScreenHeight(800);
    settings.setFullScreen(true);
    settings.activateConfig();
    standins::sdl().modes.clear();
    standins::sdl().refusedModes = 1;
    EXPECT_EQ(errorsOf([] { publish(messages::ResetVideo()); }),
              "Couldn't set the video mode: no such mode\n");
    ASSERT_EQ(standins::sdl().modes.size(), 2U);
    EXPECT_EQ(standins::sdl().modes[1].width, 800);
    EXPECT_EQ(standins::sdl().modes[1].depth, 32);
    EXPECT_EQ(standins::sdl().modes[1].flags, std::uint32_t{SDL_OPENGL | SDL_FULLSCREEN});
    EXPECT_EQ(Camera::Instance().right, 24.0) << "by the configured size";
    settings.setDefaults();
    settings.activateConfig();
    standins::sdl().refusedModes = 0;
    publish(messages::ResetVideo());
}

TEST(Camera, TakesTheFieldFromTheShapeOfTheScreen) {
    auto& settings = config::Config::Instance();
    auto& table = settings.getConfigValues();
    const struct {
        int width, height;
        double right, top;
        const char* errors;
    } cases[] = {
        {1024, 768, 20, 15, ""},
        {1280, 1024, 20, 15, ""},
        {1600, 1200, 20, 15, ""},
        {1280, 800, 24, 15, ""},
        {1920, 1080, 26.666660308837891, 15, ""},
        {600, 600, 15, 15, ""},
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

TEST(Camera, MovesAndComesBackFromTheMenu) {
    CameraClass camera;
    camera.zoomIn();
    EXPECT_EQ(camera.position.z, -100.0) << "not past home";
    camera.zoomOut(25);
    camera.strafeRight();
    camera.rotateZPos();
    camera.orthographic = false;
    camera.menuModeBegin();
    EXPECT_TRUE(camera.orthographic);
    EXPECT_EQ(camera.position, camera.homePosition);
    recordingOf([&] { camera.menuModeEnd(); });
    EXPECT_EQ(glRecorder().callsTo("glFrustum").size(), 1U);
    EXPECT_EQ(camera.position, math::Point(1, 0, -125));
    EXPECT_EQ(camera.rotation.z, 4.5);
}
