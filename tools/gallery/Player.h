#pragma once

#include "Framework/math/Point.h"

#include <deque>

class PlayerCharacter;
class Triangle;

namespace quorva::headless {
class HeadlessGame;
}

namespace gallery {

/// Plays by keys, for the pictures: fences the nearest triangle in with four lines, takes what
/// lies about, steps back from what comes too close, and keeps off the display's row.
class Player {
public:
    explicit Player(quorva::headless::HeadlessGame& run_) : run(run_) {}
    void play(); ///< before every tick
    void rest(); ///< lets go of all keys

    // Direction: until it is released, it does this and nothing else, whatever comes near.
    void goTo(const quorva::math::Point& point);
    /// Two shots from the first corner, two from the opposite one, walking outside. No corner may
    /// lie at the edge of the field.
    void fence(const quorva::math::Point& corner, const quorva::math::Point& opposite);
    void release() { directed = false; }

private:
    /// Go there, then fire these guns.
    struct Stop {
        quorva::math::Point point;
        int guns[2]; ///< key symbols, 0 for none
    };

    const Triangle* nearestTriangle() const;
    void plan(const Triangle& prey);
    void planFence(const quorva::math::Point& corner, const quorva::math::Point& opposite);
    void planWalk();
    quorva::math::Point placeAfterTick() const;
    void follow();
    bool stepBack(const Triangle& hunter);
    void steer(double dx, double dy);
    void hold(int symbol, bool down);
    void arrive(const Stop& stop);

    quorva::headless::HeadlessGame& run;
    const PlayerCharacter* cube = nullptr;
    std::deque<Stop> stops;
    unsigned int patience = 0; ///< ticks left for the way to the next stop
    bool directed = false;     ///< plans nothing itself
    bool held[4] = {};         ///< right, left, up, down
};

} // namespace gallery
