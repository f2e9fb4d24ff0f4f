#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

class Bullet;
class GLine;

/// The line that a bullet draws. It grows with its bullet, then stands for a set time as a wall
/// for triangles and a side for rectangles, blinks in its last ticks, and goes.
class TrapLine : public quorva::Entity,
                 public quorva::MessageInterface<quorva::messages::EndLevel>,
                 public quorva::MessageInterface<PlayerDead> {
public:
    /// @param lifeTicks ticks to stand once the bullet has gone
    TrapLine(const quorva::math::Point& start, Bullet* bullet, unsigned short lifeTicks,
             bool horizontal);

    void process() override;
    void update() override;
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }
    void receiveMessage(const PlayerDead*) override; ///< starts the fading

    /// Ends the line: the physics takes it out in its next sub-step.
    void fakeKill(bool alsoBullet);
    bool isFakeDone() const { return fakeDone; }

    /// Lets go of a bullet that has ended. `end` stays as the last update left it.
    void updateBullet();
    void killBullet();

    quorva::math::Point start; ///< the fixed end
    /// The end on the bullet, one update old, and zero until the first: what triangles and
    /// rectangles see, while the drawn end is the bullet's place.
    quorva::math::Point end;
    /// In flight; null from the moment it has ended. Not owned: it is let go of here, or by the
    /// physics when the engine deletes it.
    Bullet* bullet;
    GLine* line; ///< owned by the graphic object
    std::uint16_t lifeTicks;
    bool horizontal; ///< fired left or right
    bool fakeDone = false;
    bool solid = true; ///< may be a side of a rectangle
    std::uint32_t solidDelay = 0;
    std::uint16_t blinkTicks; ///< until the next toggle of visibility
    bool fading = false;      ///< the player has died
    float fadeScale = 1.0F;
    float fadeStep = 0.0F;
    bool finished = false;      ///< update has seen the bullet's end
    bool endWithBullet = false; ///< never set

private:
    void fade();
    void harden();
    void age();
};
