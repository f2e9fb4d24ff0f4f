// What a player can see, state by state: one frame each, call by call.

#include "tests/pictures/Pictures.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Renderer.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"
#include "tests/support/FieldTest.h"
#include "tests/support/Settings.h"

using namespace quorva;
using headless::HeadlessGame;

namespace {

class PicturesOfAField : public FieldTest {
protected:
    /// All that can be on a field: actors, effects, and arrows that show how far each gun is. As
    /// wide as the screen that line widths are authored for: on a narrower one, all thin lines come
    /// out one pixel wide.
    PicturesOfAField() : FieldTest(1280, 800) {
        EngineClass& engine = Engine::Instance();
        body(player).position = math::Point(2, 1, 0);
        engine.createEntity<PupLine>("Line Powerup", math::Point(-12, 8, 0));
        engine.createEntity<PupCooldown>("Cooldown Powerup", math::Point(12, 8, 0));
        engine.createEntity<BombClear>("Clear Bomb", math::Point(-12, -8, 0));
        engine.createEntity<BombImmune>("Immune Bomb", math::Point(12, -8, 0));
        for (const auto& [x, y] : {std::pair{25, 3}, {-3, -18}, {5, 19}, {-24, -4}, {17, 0}})
            add(x, y, 3.0);
        run.ticks(35);
        for (const auto& [x, y] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
            fire(x, y);
            run.ticks(5);
        }
        across(12, -18, 18)->lifeTicks = 70; // blinks
        add(-7, 0, 3.0);
        for (const double side : {-3.0, 3.0}) {
            across(side, -11, -3);
            upright(-7 + side, -4, 4);
        }
        run.ticks(3); // it is caught, and bursts
        body(add(8, 4, 3.0)).hitLine = true;
        run.process();
    }
};

} // namespace

TEST(Pictures, OfAVideoModeAsItIsSetUp) {
    expectPicture("video-mode", callsOf([] { const graphics::Renderer renderer(nullptr); }));
    activate({{"ScreenWidth", 1280}, {"ScreenHeight", 800}, {"FullScreen", 1}});
    expectPicture("video-mode-full-screen",
                  callsOf([] { const graphics::Renderer renderer(nullptr); }), "video-mode");
}

TEST(Pictures, OfTheMenus) {
    HeadlessGame run(100);
    for (const char* item : {"start", "configuration", "help", "about", "exit"}) {
        expectPicture(std::string("menu-") + item, nextFrame(), "menu-start");
        press(run, {SDLK_DOWN}, 2);
    }
    press(run, {SDLK_DOWN, SDLK_DOWN, SDLK_RETURN}, 2);
    expectPicture("help", nextFrame());
    press(run, {SDLK_RETURN, SDLK_DOWN, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN}, 2);
    expectPicture("about", nextFrame());
    press(run, {SDLK_RETURN}, 2);
    expectPicture("menu-start", nextFrame()); // it is back as it was
    press(run, {SDLK_DOWN, SDLK_RETURN}, 2);
    for (const char* row : {"resolution", "fullscreen", "music-volume", "fx-volume",
                            "collision-accuracy", "save-cpu", "save", "cancel"}) {
        expectPicture(std::string("configuration-") + row, nextFrame(), "configuration-resolution");
        press(run, {SDLK_DOWN}, 2);
    }
    expectPicture("configuration-resolution", nextFrame()); // no other row is lit any more
    press(run, {SDLK_ESCAPE}, 2);
    expectPicture("menu-start", nextFrame());
}

TEST(Pictures, OfAMenuAndALevelOnScreensOfEachShape) {
    using Size = std::pair<unsigned short, unsigned short>;
    for (const auto& [width, height] :
         {Size{800, 600}, {1280, 800}, {1920, 1080}, {1024, 1024}, {768, 1024}}) {
        HeadlessGame run(100, width, height);
        const std::string size = std::to_string(width) + "x" + std::to_string(height);
        expectPicture("menu-" + size, nextFrame(), "menu-start");
        run.startLevel();
        run.process();
        expectPicture("level-" + size, nextFrame(), "level-800x600");
    }
}

TEST_F(PicturesOfAField, PausedAndTaken) {
    expectPicture("field", nextFrame());
    run.press(SDLK_p);
    run.frame();
    expectPicture("pause", nextFrame(), "field");
    run.press(SDLK_p);
    run.frame();
    newest<PupLine>()->dead = newest<PupCooldown>()->dead = true;
    run.ticks(5);
    expectPicture("field-rays-spin", nextFrame(), "field");
}

TEST_F(PicturesOfAField, ThroughADeath) {
    publish(PlayerDead());
    run.ticks(10);
    expectPicture("death", nextFrame());
    run.ticks(55);
    expectPicture("death-arrows-return", nextFrame());
    run.ticks(60);
    expectPicture("next-life", nextFrame());
}

TEST(Pictures, OfEachVerdict) {
    const auto verdictOn = [](std::uint32_t score, std::uint32_t highScore) {
        HeadlessGame run(100);
        run.startLevel();
        Marvo::Instance().score = score;
        Marvo::Instance().highScore = highScore;
        PlayerDead last;
        last.gameOver = true;
        publish(last);
        publish(messages::EndLevel());
        run.process();
        return nextFrame();
    };
    for (const std::uint32_t score :
         {49999U, 50000U, 124999U, 125000U, 249999U, 250000U, 750000U, 750001U})
        expectPicture("verdict-" + std::to_string(score), verdictOn(score, 1000000),
                      "verdict-49999");
    expectPicture("verdict-high-score", verdictOn(60000, 59999), "verdict-49999");
}
