// Makes the pictures of docs/gallery: plays one game by a fixed clock and fixed rules, and keeps of
// each kind of moment the one that shows most.
//
//   gallery FOLDER WIDTH HEIGHT       pictures of all pages and moments, as PPM
//   gallery --film FOLDER WIDTH HEIGHT   the frames of a short film of the same game

#include "game/GameBase.h"
#include "game/Marvo.h"
#include "platform/headless/HeadlessGame.h"
#include "tools/gallery/Picture.h"
#include "tools/gallery/Player.h"
#include "tools/gallery/Scene.h"

#include <SDL.h>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <string>

using gallery::Picture;
using gallery::Scene;

namespace {

constexpr std::uint32_t start_clock = 7; ///< ms; seeds the game
constexpr unsigned int game_ticks = 6000, pause_tick = 2400;
constexpr unsigned int film_ticks = 240, ticks_per_frame = 2;

/// 1 at the middle of a fade's best part, 0 outside.
double near(float alpha, double best) {
    return std::fmax(0.0, 1.0 - 10.0 * std::fabs(alpha - best));
}

double crowd(const Scene& s) {
    return 2.0 * s.triangles + 2.0 * s.stuck + s.lines;
}

/// A kind of moment; the merit says how well one shows it, 0 for not at all.
struct Moment {
    const char* name;
    double (*merit)(const Scene& s);
    double best = 0.0;
    Picture picture = {};
};

Moment moments[] = {
    {"busy", [](const Scene& s) { return s.playerVisible ? crowd(s) : 0.0; }},
    {"square", [](const Scene& s) { return near(s.square, 0.7) * (crowd(s) + 3.0 * s.splinters); }},
    {"death", [](const Scene& s) { return near(0.01F * s.deathTicks, 0.9) * s.splinters; }},
    {"clear-bomb",
     [](const Scene& s) { return s.clearBombs * near(s.pulse, 0.35) * (10.0 + crowd(s)); }},
    {"immune-bomb",
     [](const Scene& s) { return s.immuneBombs * near(s.pulse, 0.35) * (10.0 + crowd(s)); }},
    {"power-ups",
     [](const Scene& s) {
         return s.linePowerUps > 0 && s.cooldownPowerUps > 0 ? s.rays + crowd(s) : 0.0;
     }},
};

class Gallery {
public:
    Gallery(std::string folder_, unsigned short width_, unsigned short height_)
        : folder(std::move(folder_)), width(width_), height(height_),
          run(start_clock, width, height), player(run) {}

    void pictures() {
        pages();
        moments_();
        end("record");
        run.press(SDLK_RETURN);
        run.tick();
        startGame();
        end("game-over");
    }
    void film();

private:
    Picture shot() const { return Picture::ofScreen(width, height); }
    void save(const std::string& name) const { shot().save(folder + '/' + name + ".ppm"); }
    void press(int symbol) {
        run.press(symbol);
        run.tick();
        run.tick(); // shown
    }
    void startGame() {
        run.startLevel();
        run.tick();
    }
    void playTick() {
        player.play();
        run.tick();
    }
    void pages();
    void moments_();
    void end(const std::string& name);

    const std::string folder;
    const unsigned short width, height;
    quorva::headless::HeadlessGame run;
    gallery::Player player;
};

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
    press(SDLK_ESCAPE);
}

void Gallery::moments_() {
    startGame();
    for (unsigned int tick = 0; tick < game_ticks && run.game().level != nullptr; ++tick) {
        playTick();
        if (tick == pause_tick) {
            press(SDLK_p);
            save("pause");
            press(SDLK_p);
        }
        const Scene scene(run.game());
        for (Moment& moment : moments) {
            const double merit = moment.merit(scene);
            if (merit <= moment.best) continue;
            moment.best = merit;
            moment.picture = shot();
        }
    }
    for (const Moment& moment : moments) {
        if (moment.best > 0.0)
            moment.picture.save(folder + '/' + moment.name + ".ppm");
        else
            std::cerr << "The game has not shown: " << moment.name << '\n';
    }
}

/// Stands still until the game is lost.
void Gallery::end(const std::string& name) {
    player.rest();
    while (run.game().level != nullptr)
        run.tick();
    run.tick();
    save(name);
    std::cerr << name << ": score " << Marvo::Instance().score << '\n';
}

} // namespace

int main(int argc, char* argv[]) {
    const bool film = argc == 5 && std::string(argv[1]) == "--film";
    if (argc != 4 && !film) {
        std::cerr << "Usage: gallery [--film] FOLDER WIDTH HEIGHT\n";
        return 2;
    }
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK) < 0) {
        std::cerr << "No display: " << SDL_GetError() << '\n';
        return 1;
    }
    Gallery gallery(argv[argc - 3], static_cast<unsigned short>(std::stoi(argv[argc - 2])),
                    static_cast<unsigned short>(std::stoi(argv[argc - 1])));
    gallery.pictures();
    return 0;
}
