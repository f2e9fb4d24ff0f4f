// Makes the pictures of docs/gallery, on a virtual clock and by fixed rules.
//
//   gallery SCENE FOLDER WIDTH HEIGHT
//
// SCENE is one of the table below. Its pictures go into FOLDER as PPM; WIDTH and HEIGHT are the
// screen's, in pixels. Moments that explain are set up by hand (Stage.h) and then played; the late
// field is the fullest of one long game.

#include "game/GameBase.h"
#include "game/Marvo.h"
#include "headless/HeadlessGame.h"
#include "tools/gallery/Picture.h"
#include "tools/gallery/Player.h"
#include "tools/gallery/Scene.h"
#include "tools/gallery/Stage.h"

#include <SDL.h>

#include <cmath>
#include <cstdint>
#include <iostream>
#include <string>

using gallery::Picture;
using gallery::Scene;

namespace {

// In ticks.
constexpr unsigned int ten_minutes = 20000, late_tick = 9000;
constexpr unsigned int time_in_menu = 5;     ///< the clock at the start of a level seeds its game
constexpr unsigned int harmless_start = 101; ///< the cube blinks so long
constexpr unsigned int look_about = 25;      ///< the triangles turn towards the cube meanwhile
constexpr unsigned int splinters_fly = 2;    ///< after a catch
constexpr unsigned int pause_later = 30;     ///< after a catch
constexpr unsigned int arrows_fly = 6;       ///< after a death
constexpr unsigned int pulse_arrives = 63;   ///< its lines are close to the bombs
constexpr unsigned int film_ticks = 216, ticks_per_frame = 2;
constexpr std::int16_t spare_lives = 3;

class Gallery {
public:
    Gallery(std::string folder_, unsigned short width_, unsigned short height_)
        : folder(std::move(folder_)), width(width_), height(height_), run(0, width, height),
          player(run) {}

    // The scenes.
    void pages();
    void display();
    void fence();
    void film();
    void powerUps();
    void death();
    void late();
    void verdicts();

private:
    Picture shot() const { return Picture::ofScreen(width, height); }
    void save(const std::string& name) const { shot().save(folder + '/' + name + ".ppm"); }
    void press(int symbol);
    void startGame();
    bool playTick(); ///< whether the game goes on
    void playTicks(unsigned int count);
    bool playLongTick(); ///< the same in a game that no death ends
    void startFence();
    void showEnd(const std::string& name);

    const std::string folder;
    const unsigned short width, height;
    quorva::headless::HeadlessGame run;
    gallery::Player player;
};

void Gallery::press(int symbol) {
    run.press(symbol);
    run.tick();
    run.tick(); // shown
}

void Gallery::startGame() {
    for (unsigned int i = 0; i < time_in_menu; ++i)
        run.process(); // unseen
    run.startLevel();
    run.tick();
}

bool Gallery::playTick() {
    player.play();
    run.tick();
    return run.game().level != nullptr;
}

void Gallery::playTicks(unsigned int count) {
    for (unsigned int i = 0; i < count; ++i)
        playTick();
}

bool Gallery::playLongTick() {
    Marvo::Instance().lives = spare_lives;
    return playTick();
}

void Gallery::pages() {
    const auto page = [this](int downs, const char* name) {
        for (int i = 0; i < downs; ++i)
            press(SDLK_DOWN);
        press(SDLK_RETURN);
        save(name);
    };
    run.tick();
    save("menu");
    page(2, "help");
    press(SDLK_RETURN);
    page(3, "about");
    press(SDLK_RETURN);
    page(1, "config");
    for (int row = 0; row < 4; ++row)
        press(SDLK_DOWN);
    save("config-accuracy");
    press(SDLK_DOWN);
    save("config-cpu");
}

void Gallery::display() {
    startGame();
    // Each digit in an odd and in an even place: they fall on the pixels in different ways.
    for (const std::uint32_t score : {1583246790U, 3852064971U}) {
        Marvo::Instance().score = score;
        run.tick();
        save("display-" + std::to_string(score));
    }
}

/// Up to the first shot.
void Gallery::startFence() {
    startGame();
    player.goTo(gallery::fence_corner);
    playTicks(harmless_start - look_about);
    gallery::stageFence();
    playTicks(look_about);
    player.fence(gallery::fence_corner, gallery::fence_opposite);
}

void Gallery::fence() {
    startFence();
    Picture before;
    while (Marvo::Instance().score == 0) {
        before = shot();
        playTick();
    }
    before.save(folder + "/fence.ppm");
    playTicks(splinters_fly);
    save("square");
    playTicks(pause_later);
    press(SDLK_p);
    save("pause");
}

/// One catch, a power-up, another catch.
void Gallery::film() {
    unsigned int tick = 0;
    const auto filmUntil = [&](auto&& isOver) {
        for (; tick < film_ticks && !isOver(); ++tick) {
            playTick();
            if (tick % ticks_per_frame == 0)
                save("frame-" + std::to_string(10000 + tick)); // in order by name
        }
    };
    const MarvoClass& marvo = Marvo::Instance();
    startFence();
    filmUntil([&] { return marvo.score > 0; });
    player.goTo(gallery::power_up_place);
    filmUntil([&] { return marvo.numLinePUPS() > 0; });
    player.fence(gallery::second_corner, gallery::second_opposite);
    filmUntil([] { return false; });
}

void Gallery::powerUps() {
    startGame();
    run.ticks(harmless_start);
    gallery::stagePowerUps();
    run.ticks(pulse_arrives);
    save("power-ups");
}

void Gallery::death() {
    startGame();
    player.goTo(gallery::death_place);
    playTicks(harmless_start - look_about);
    gallery::stageDeath();
    playTicks(look_about);
    for (const int gun : {SDLK_w, SDLK_d})
        run.press(gun);
    while (Scene(run.game()).deathTicks == 0)
        playTick();
    playTicks(arrows_fly);
    save("death");
}

void Gallery::late() {
    double best = 0.0;
    Picture picture;
    startGame();
    for (unsigned int tick = 0; tick < ten_minutes && playLongTick(); ++tick) {
        const Scene scene(run.game());
        if (tick < late_tick || scene.playerHigh || !scene.playerVisible) continue;
        const double crowd = 2.0 * scene.triangles + 2.0 * scene.stuck + scene.lines;
        if (crowd <= best) continue;
        best = crowd;
        picture = shot();
    }
    picture.save(folder + "/busy.ppm");
}

void Gallery::verdicts() {
    startFence();
    playTicks(harmless_start); // the fence closes
    showEnd("record");
    press(SDLK_RETURN);
    startGame();
    showEnd("game-over"); // worse than the record of just now
}

/// Stands still until the game is lost.
void Gallery::showEnd(const std::string& name) {
    player.rest();
    while (run.game().level != nullptr)
        run.tick();
    run.tick();
    save(name);
}

const struct {
    const char* name;
    void (Gallery::*play)();
    const char* shows;
} scenes[] = {
    {"pages", &Gallery::pages, "main menu, configuration, help, about"},
    {"display", &Gallery::display, "the display's row with all digits"},
    {"fence", &Gallery::fence, "three triangles before and after their fence closes; the pause"},
    {"film", &Gallery::film, "the frames of a catch and of what follows"},
    {"power-ups", &Gallery::powerUps, "one of each, and of the bombs"},
    {"death", &Gallery::death, "a moment after a death"},
    {"late", &Gallery::late, "the fullest field of ten minutes"},
    {"verdicts", &Gallery::verdicts, "the page after a game, with a record and without"},
};

int usage() {
    std::cerr << "Usage: gallery SCENE FOLDER WIDTH HEIGHT\n";
    for (const auto& scene : scenes)
        std::cerr << "  " << scene.name << ": " << scene.shows << '\n';
    return 2;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::string name = argc == 5 ? argv[1] : "";
    for (const auto& scene : scenes) {
        if (name != scene.name) continue;
        if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK) < 0) {
            std::cerr << "No display: " << SDL_GetError() << '\n';
            return 1;
        }
        Gallery gallery(argv[2], static_cast<unsigned short>(std::stoi(argv[3])),
                        static_cast<unsigned short>(std::stoi(argv[4])));
        (gallery.*scene.play)();
        return 0;
    }
    return usage();
}
