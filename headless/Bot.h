#pragma once

#include "Framework/math/Point.h"

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

class GameLevel;
class PlayerCharacter;

namespace quorva {
class Entity;
namespace menus {
class MainMenu;
}
} // namespace quorva

namespace quorva::headless {

/// Plays the game by key events, for ever, as a person at the screen would: starts a game, closes
/// rectangles around triangles from two corners, collects power-ups, keeps away from triangles,
/// dies, reads the verdict and starts again. The same seed and game give the same keys.
class Bot {
public:
    explicit Bot(std::uint32_t seed);

    void play(); ///< sends the keys of the next pass

    std::function<void(int symbol, bool down)> onKey; ///< sees every key that is sent

    bool visitsPages = true; ///< help, about and configuration between two games
    bool pauses = true;      ///< now and then

    std::uint64_t games = 0; ///< started

private:
    /// A rectangle to be closed: two shots from each of two opposite corners.
    struct Plan {
        bool active = false;
        unsigned long target = 0; ///< the triangle's id
        math::Point first, second;
        std::vector<math::Point> way; ///< points still to pass, the next at the back
        bool firstFired = false;
        unsigned int age = 0; ///< ticks
    };

    void look();
    void playMenu();
    void usePage();
    void chooseItem();
    void chooseInConfiguration();
    void playLevel();
    void syncDirections();
    void unpause();

    void planFence();
    bool planStands() const;
    void followPlan();
    bool fireFrom(const math::Point& corner, const math::Point& other);
    bool defend();
    void steerTo(const math::Point& goal);
    double danger(const math::Point& point) const;
    const Entity* nearestPowerUp() const;

    void hold(int symbol, bool down); ///< no event if nothing changes
    void releaseAll();
    void press(int symbol);
    void send(int symbol, bool down);
    unsigned int draw(unsigned int bound); ///< 0 to bound - 1
    double between(double low, double high);

    std::mt19937 random; ///< its own: the game's stream is part of the game
    Plan plan;
    std::vector<int> held;
    unsigned int wait = 0; ///< passes until the next key in a menu or pause
    unsigned int goal;     ///< item of the main menu
    bool wasInLevel = false;
    bool wasLyingDead = false;

    // The state of the game in this pass.
    menus::MainMenu* menu = nullptr;
    GameLevel* level = nullptr; ///< null in the menus
    PlayerCharacter* player = nullptr;
    std::vector<const Entity*> triangles, powerUps;
};

} // namespace quorva::headless
