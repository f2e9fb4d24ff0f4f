#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"

class Bullet;
class GLine;

/// The line that a bullet draws: a wall for triangles, and a side for rectangles.
///
/// Its life:
/// 1. It grows: each update() moves `end` to the bullet.
/// 2. Its bullet ends: updateBullet() lets it fade. If update() is first: `finished`, killBullet().
/// 3. It stands for `lifeTicks` ticks, and blinks in the last of them.
/// 4. Time, a rectangle that pays out (fakeKill) or the fading after a death sets `fakeDone`.
/// 5. The next sub-step takes it out of the physics and sets `dead`; the engine deletes it.
class TrapLine : public quorva::Entity,
                 public quorva::MessageReceiver<quorva::messages::EndLevel, PlayerDead> {
public:
    /// @param lifeTicks ticks to stand once the bullet has gone
    TrapLine(const quorva::math::Point& start, Bullet* bullet, unsigned short lifeTicks,
             bool horizontal);

    void process() override;
    void update() override;
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }
    void receiveMessage(const PlayerDead*) override; ///< starts the fading

    void fakeKill(bool alsoBullet); ///< sets `fakeDone`; also ends a bullet in flight
    bool isFakeDone() const { return fakeDone; }

    /// Every sub-step, by the physics. Lets go of a bullet that has ended: the drawn end snaps to
    /// it, `end` stays as the last update left it.
    void updateBullet();
    void killBullet(); ///< lets go of the bullet, `end` at its place, and deletes it without a fade

    quorva::math::Point start; ///< the fixed end
    /// The moving end as triangles and rectangles meet it: where the bullet was at the last update,
    /// zero until the first. The drawn end is where the bullet is.
    quorva::math::Point end;
    /// While it flies, else null. Not owned: cleared here when it ends, by the physics when the
    /// engine deletes it.
    Bullet* bullet;
    GLine* line;             ///< the graphics own it
    std::uint16_t lifeTicks; ///< left to stand without a bullet
    bool horizontal;         ///< fired left or right
    bool fakeDone = false;
    bool solid = true;            ///< may be a side of a rectangle; nothing clears it
    std::uint32_t solidDelay = 0; ///< ticks while not solid: never runs
    std::uint16_t blinkTicks;     ///< until the next toggle of visibility
    bool fading = false;          ///< the player has died
    float fadeScale = 1.0F;       ///< of the drawn line; from 1 down to 0
    float fadeStep = 0.0F;        ///< by which it shrinks; grows each tick
    bool finished = false;        ///< update() has seen the bullet's end
    bool endWithBullet = false;   ///< nothing sets it: a line never goes with its bullet

private:
    void fade();   ///< 13 ticks
    void harden(); ///< 7 ticks
    void age();    ///< counts `lifeTicks` down and blinks
};
