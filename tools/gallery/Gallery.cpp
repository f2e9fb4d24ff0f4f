// Makes the pictures of docs/gallery: plays one game by a fixed clock and fixed rules, and keeps of
// each kind of moment the one that shows most.
//
//   gallery pictures FOLDER WIDTH HEIGHT SEED   all pages and moments
//   gallery film FOLDER WIDTH HEIGHT SEED       the frames of the game's liveliest seconds
//
// All as PPM. WIDTH and HEIGHT are the screen's, in pixels; SEED is how
// many ticks pass in the menu: the clock at the start of a level seeds its game.

#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "game/GameBase.h"
#include "game/Marvo.h"
#include "headless/HeadlessGame.h"
#include "tools/gallery/Picture.h"
#include "tools/gallery/Player.h"
#include "tools/gallery/Scene.h"

#include <SDL.h>

#include <cmath>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using gallery::Picture;
using gallery::Scene;

namespace {

constexpr unsigned int game_ticks = 6000, pause_tick = 1500;
constexpr unsigned int film_ticks = 240, ticks_per_frame = 2;
constexpr double worth_of_catch = 60.0, cost_of_death = 20.0; ///< for the film, in crowds

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
     [](const Scene& s) { return s.clearBombs * near(s.pulse, 0.45) * (10.0 + crowd(s)); }},
    {"immune-bomb",
     [](const Scene& s) { return s.immuneBombs * near(s.pulse, 0.45) * (10.0 + crowd(s)); }},
    {"power-ups",
     [](const Scene& s) {
         const bool both = s.linePowerUps > 0 && s.cooldownPowerUps > 0;
         const bool any = s.linePowerUps > 0 || s.cooldownPowerUps > 0;
         return any && s.playerVisible ? (both ? 100.0 : 0.0) + s.rays + crowd(s) : 0.0;
     }},
};

class Gallery {
public:
    Gallery(std::string folder_, unsigned short width_, unsigned short height_, unsigned int seed_)
        : folder(std::move(folder_)), width(width_), height(height_), seed(seed_),
          run(0, width, height), player(run) {}

    void pictures();
    /// Plays without a camera.
    /// @return the tick of the game from which the film is to run
    unsigned int findFilm();
    void film(unsigned int firstTick);

private:
    Picture shot() const { return Picture::ofScreen(width, height); }
    void save(const std::string& name) const { shot().save(folder + '/' + name + ".ppm"); }
    void press(int symbol);
    void startGame();
    bool playTick(); ///< whether the game goes on
    void showPages();
    void showGame();
    void showEnd(const std::string& name);
    void keepBest();

    const std::string folder;
    const unsigned short width, height;
    const unsigned int seed;
    quorva::headless::HeadlessGame run;
    gallery::Player player;
};

void Gallery::press(int symbol) {
    run.press(symbol);
    run.tick();
    run.tick(); // shown
}

void Gallery::startGame() {
    for (unsigned int i = 0; i < seed; ++i)
        run.process(); // unseen
    run.startLevel();
    run.tick();
}

bool Gallery::playTick() {
    player.play();
    run.tick();
    return run.game().level != nullptr;
}

void Gallery::pictures() {
    showPages();
    startGame();
    showGame();
    showEnd("record");
    press(SDLK_RETURN);
    startGame();
    showEnd("game-over"); // worse than the record of just now
}

void Gallery::showPages() {
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

void Gallery::showGame() {
    for (unsigned int tick = 0; tick < game_ticks && playTick(); ++tick) {
        if (tick == pause_tick) {
            press(SDLK_p);
            save("pause");
            press(SDLK_p);
        }
        keepBest();
    }
    for (const Moment& moment : moments) {
        if (moment.best > 0.0)
            moment.picture.save(folder + '/' + moment.name + ".ppm");
        else
            std::cerr << "The game has not shown: " << moment.name << '\n';
        std::cout << moment.name << ' ' << moment.best << "  ";
    }
}

void Gallery::keepBest() {
    const Scene scene(run.game());
    for (Moment& moment : moments) {
        const double merit = moment.merit(scene);
        if (merit <= moment.best) continue;
        moment.best = merit;
        moment.picture = shot();
    }
}

/// Stands still until the game is lost.
void Gallery::showEnd(const std::string& name) {
    player.rest();
    while (run.game().level != nullptr)
        run.tick();
    run.tick();
    save(name);
    std::cout << name << ": " << Marvo::Instance().score << " points\n";
}

unsigned int Gallery::findFilm() {
    startGame();
    std::vector<double> worth; // of every tick
    unsigned long score = 0;
    while (worth.size() < game_ticks && playTick()) {
        const Scene scene(run.game());
        worth.push_back(crowd(scene) + (scene.score > score ? worth_of_catch : 0.0) -
                        (scene.deathTicks > 0 ? cost_of_death : 0.0));
        score = scene.score;
    }
    double sum = 0.0, best = 0.0;
    unsigned int first = 0;
    for (unsigned int tick = 0; tick < worth.size(); ++tick) {
        sum += worth[tick] - (tick >= film_ticks ? worth[tick - film_ticks] : 0.0);
        if (sum <= best) continue;
        best = sum;
        first = tick >= film_ticks ? tick - film_ticks : 0;
    }
    return first;
}

void Gallery::film(unsigned int firstTick) {
    quorva::publish(quorva::messages::ResetVideo()); // the letters went with the first run's window
    startGame();
    for (unsigned int tick = 0; tick < firstTick + film_ticks && playTick(); ++tick) {
        if (tick < firstTick || tick % ticks_per_frame != 0) continue;
        const std::string number = std::to_string(10000 + tick); // in order by name
        save("frame-" + number);
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const std::string what = argc == 6 ? argv[1] : "";
    if (what != "pictures" && what != "film") {
        std::cerr << "Usage: gallery pictures|film FOLDER WIDTH HEIGHT SEED\n";
        return 2;
    }
    if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK) < 0) {
        std::cerr << "No display: " << SDL_GetError() << '\n';
        return 1;
    }
    const auto open = [argv] {
        return std::make_unique<Gallery>(argv[2], static_cast<unsigned short>(std::stoi(argv[3])),
                                         static_cast<unsigned short>(std::stoi(argv[4])),
                                         static_cast<unsigned int>(std::stoul(argv[5])));
    };
    if (what == "pictures") {
        open()->pictures();
        return 0;
    }
    const unsigned int firstTick = open()->findFilm();
    open()->film(firstTick);
    return 0;
}
