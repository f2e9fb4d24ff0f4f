#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"

#include <boost/array.hpp>

class ArrowIndicator;
class GCube;

namespace quorva::graphics {
class Colour;
}

/// The one entity that the person at the keys drives: a small cube with four independent guns.
/// It holds the figures that power-ups improve, and runs the sequence of a death: a spell at the
/// centre, deaf to input, then a spell of invulnerability.
class PlayerCharacter : public quorva::Entity,
                        public quorva::MessageReceiver<quorva::messages::PlayerInput,
                                                       quorva::messages::EndLevel, PlayerDead> {
public:
    /// Directions of fire, in the order in which their timers run.
    enum Gun { gun_right, gun_left, gun_up, gun_down, gun_count };

    explicit PlayerCharacter(const quorva::math::Point& position);

    void process() override;
    void update() override; ///< publishes the position as the point "Player Location"
    void receiveMessage(const quorva::messages::PlayerInput* m) override;
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }
    void receiveMessage(const PlayerDead*) override;

    void setupPhysics(const quorva::math::Point& position);
    void setupProperties() {}
    void setupGraphics();

    /// Fires a bullet, with its line, whatever the cooldown. Ignores all but the guns' directions,
    /// of length 1, and any call while the player lies dead.
    void fireBullet(const quorva::math::Vector& direction);

    GCube* cube = nullptr;                            ///< the graphics own it
    const quorva::graphics::Colour* colour = nullptr; ///< resource, not owned
    bool moveUp = false, moveDown = false, moveLeft = false, moveRight = false;
    bool invulnerable = true;        ///< cannot be killed
    std::uint16_t invulnerableTicks; ///< left of it
    std::uint16_t blinkTicks;        ///< until the next toggle of visibility
    std::uint16_t lineLength;        ///< ticks that a finished line stands
    std::uint16_t cooldown;          ///< ticks between two shots in one direction
    boost::array<std::uint16_t, gun_count> fireTimers = {{0, 0, 0, 0}}; ///< ticks left, by Gun
    /// The power-up taken last. Not owned and soon deleted; nothing reads it.
    quorva::Entity* lastPickup = nullptr;
    std::uint16_t pickupLock = 0;            ///< ticks during which nothing can be taken
    std::uint16_t deathTicks = 0;            ///< left of the death sequence
    boost::array<ArrowIndicator*, 4> arrows; ///< up, left, down, right; the engine owns them
    std::uint16_t linePups = 0;              ///< line power-ups taken
    std::uint16_t cooldownPups = 0;          ///< cooldown power-ups and bombs taken

private:
    void fire(Gun gun); ///< if it has cooled down
    void shoot(Gun gun, const quorva::math::Vector& velocity);
    void lieDead();
    void steer();
    void wearOff();
    void blink();
    void becomeVulnerable();
    void coolDown();
    void pickUp();
    bool take(quorva::Entity* powerUp);
    void stayOnField();
};
