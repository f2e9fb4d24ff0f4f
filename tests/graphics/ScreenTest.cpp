#include "tests/support/FieldTest.h"

#include "Framework/Graphics/Camera.h"
#include "tests/support/Errors.h"
#include "tests/support/Settings.h"

using namespace quorva;
using namespace quorva::graphics;

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
