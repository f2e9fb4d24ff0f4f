// The layer between the game and what comes from outside, and the pictures of a game unseen.

#include "replay/Tape.h"
#include "platform/standins/GLRecorder.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "replay/FramePicture.h"

#include "Framework/Graphics/Renderer.h"
#include "headless/HeadlessGame.h"
#include "headless/Sandbox.h"

#include <GL/gl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <optional>

using namespace quorva;
using namespace quorva::replay;
using standins::glRecorder;
using standins::sdl;

namespace {

/// Draws lines of three times the width, and may be silent.
struct Changed : Tape {
    float lineWidth(float width) override { return width * 3.0F; }
    bool sounds() override { return audible; }
    bool audible = false;
};

class Layer : public testing::Test {
protected:
    void SetUp() override { sdl() = {}; }
    void TearDown() override {
        glRecorder().stop();
        sdl() = {};
        standins::sound() = {};
    }
};

} // namespace

TEST_F(Layer, GoesThroughWithoutATape) {
    sdl().ticks = 42;
    sdl().joysticks = 1;
    sdl().axes[0][1] = 77;
    EXPECT_EQ(SDL_GetTicks(), 42U);
    EXPECT_EQ(SDL_JoystickGetAxis(SDL_JoystickOpen(0), 1), 77);
    SDL_SetVideoMode(640, 480, 32, 0);
    EXPECT_EQ(sdl().modes.at(0).width, 640);
    SDL_GL_SwapBuffers();
    EXPECT_EQ(sdl().swaps, 1U);
    glRecorder().start();
    glViewport(0, 0, 320, 200);
    glLineWidth(2.5F);
    EXPECT_EQ(glRecorder().text(), "glViewport 0 0 320 200\nglLineWidth 2.5\n");
    const auto before = std::chrono::steady_clock::now();
    usleep(20000);
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(20));
    FMOD_SOUND* effect = nullptr;
    FMOD_CHANNEL* channel = nullptr;
    FMOD_System_CreateSound(nullptr, "Sounds/hit.wav", 0, nullptr, &effect);
    standins::sound().recording = true;
    FMOD_System_PlaySound(nullptr, FMOD_CHANNEL_ANY, effect, 0, &channel);
    EXPECT_EQ(standins::sound().take(), "play Sounds/hit.wav; ");
}

TEST_F(Layer, SilencesEffectsButNoSongAndWidensLines) {
    Changed tape;
    const Insertion insertion(tape);
    FMOD_SOUND *effect = nullptr, *song = nullptr;
    FMOD_CHANNEL* channel = nullptr;
    FMOD_System_CreateSound(nullptr, "Sounds/hit.wav", 0, nullptr, &effect);
    FMOD_System_CreateStream(nullptr, "Songs/a.ogg", FMOD_MODE_STREAM, nullptr, &song);
    standins::sound().recording = true;
    FMOD_System_PlaySound(nullptr, FMOD_CHANNEL_ANY, effect, 0, &channel);
    FMOD_System_PlaySound(nullptr, FMOD_CHANNEL_ANY, song, 0, &channel);
    EXPECT_EQ(standins::sound().take(), "play Songs/a.ogg; ");
    tape.audible = true;
    FMOD_System_PlaySound(nullptr, FMOD_CHANNEL_ANY, effect, 0, &channel);
    EXPECT_EQ(standins::sound().take(), "play Sounds/hit.wav; ");
    glRecorder().start();
    glLineWidth(2.0F);
    EXPECT_EQ(glRecorder().text(), "glLineWidth 6\n");
}

TEST_F(Layer, PicturesShowLinesAreasAndLetters) {
    const headless::Sandbox sandbox(KOV_SOURCE_DIR);
    const headless::HeadlessGame game(0, 800, 600); // the field is 40 by 30
    const auto shape = [](GLenum kind, std::initializer_list<std::pair<float, float>> corners) {
        glBegin(kind);
        for (const auto& [x, y] : corners)
            glVertex2f(x, y);
        glEnd();
    };
    std::optional<FramePicture> camera(std::in_place);
    const auto makeList = [&](unsigned int list, float side) {
        glNewList(list, GL_COMPILE);
        shape(GL_TRIANGLES, {{0, 0}, {side, side}, {0, side}});
        glEndList();
    };
    makeList(4, 3.0F);
    makeList(5, 2.0F);
    camera->skip();
    EXPECT_TRUE(glRecorder().calls.empty());

    makeList(5, 1.0F); // in its place
    glPushMatrix();
    glScalef(9.0F, 9.0F, 9.0F);
    glPopMatrix();
    shape(GL_LINES, {{-20, -15}, {20, 15}}); // as the game's last frame has left it
    glScalef(9.0F, 9.0F, 9.0F);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-18.0, 22.0, -14.0, 16.0, -1.0, 1.0); // to the right of the field and higher
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glPushMatrix();
    glScalef(9.0F, 9.0F, 9.0F);
    glPushMatrix();
    glPopMatrix();
    glPopMatrix();
    glColor4f(1.0F, 0.0F, 0.5F, 1.0F);
    glLineWidth(2.0F);
    glPushMatrix();
    const GLfloat shift[] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1};
    glMultMatrixf(shift);
    glScalef(2.0F, 1.0F, 1.0F);
    shape(GL_LINES, {{-1, 5}, {1, 5}, {0, 0}, {0, 1}});
    glPopMatrix();
    glPushMatrix();
    glRotatef(90.0F, 0.0F, 1.0F, 0.0F); // what was in the depth is at the right
    glTranslatef(0.0F, 0.0F, 3.0F);
    glScalef(1.0F, 1.0F, 2.0F);
    glBegin(GL_LINE_STRIP);
    for (const float z : {0.5F, 1.0F, 1.5F})
        glVertex3f(7.0F, z, z);
    glEnd();
    glPopMatrix();
    glRotatef(90.0F, 0.0F, 0.0F, 1.0F);
    glColor4f(1.0F, 1.0F, 1.0F, 0.0F);
    shape(GL_LINES, {{0, 0}, {9, 9}}); // can't be seen
    glColor4f(1.0F, 1.0F, 1.0F, 0.5F);
    shape(GL_QUADS, {{0, 0}, {1, 0}, {1, 1}}); // nor can a part of one
    shape(GL_QUADS, {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 1}, {1, 1}, {1, 0}, {0, 0}});
    glCallList(5);
    glCallList(4);
    shape(GL_TRIANGLE_STRIP, {{5, 5}, {6, 5}, {5, 6}, {6, 6}});
    shape(GL_TRIANGLE_FAN, {{5, 5}, {6, 5}, {6, 6}, {5, 6}});
    shape(GL_TRIANGLES, {{0, 0}, {0.01F, 0}, {0, 0.01F}}); // a fifth of a pixel
    shape(GL_LINE_LOOP, {{0, 0}, {0, -1}});
    const std::string picture = camera->take(800, 600);
    EXPECT_EQ(picture.find("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 800 600'>"), 0U);
    const std::string square = "M340.0 320.0L340.0 300.0L360.0 300.0L360.0 320.0Z";
    const std::string half = "fill='#ffffff' opacity='0.5'/>";
    EXPECT_EQ(picture.substr(picture.find("<path")),
              "<path d='M0.0 600.0L800.0 0.0' fill='none' stroke='#ffffff' stroke-width='1'/>"
              "<path d='M520.0 220.0L600.0 220.0M560.0 320.0L560.0 300.0' fill='none' "
              "stroke='#ff0080' stroke-width='2'/><path d='M440.0 310.0L460.0 300.0L480.0 290.0' "
              "fill='none' stroke='#ff0080' stroke-width='2'/><path d='" +
                  square + square + "' " + half +
                  "<path d='M340.0 320.0L340.0 300.0L360.0 320.0Z' " + half +
                  "<path d='M300.0 320.0L300.0 260.0L360.0 320.0Z' " + half +
                  "<path d='M240.0 220.0L260.0 200.0L260.0 220.0Z"
                  "M260.0 200.0L240.0 220.0L240.0 200.0Z' " +
                  half +
                  "<path d='M240.0 200.0L260.0 200.0L260.0 220.0Z"
                  "M240.0 220.0L240.0 200.0L260.0 220.0Z' " +
                  half + "<path d='M359.8 320.0L360.0 319.8L360.0 320.0Z' " + half +
                  "<path d='M360.0 320.0L380.0 320.0Z' fill='none' stroke='#ffffff' "
                  "stroke-width='2' opacity='0.5'/></g></svg>");
    EXPECT_TRUE(glRecorder().calls.empty());
    camera.reset();
    glLineWidth(1.0F);
    EXPECT_TRUE(glRecorder().calls.empty());
}
