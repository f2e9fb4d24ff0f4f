#include "game/TrapLine.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/Bullet.h"

using namespace quorva;

namespace {

constexpr float line_depth = -10.0F; // behind the other things of its layer
constexpr float line_width = 4.0F;
constexpr std::uint32_t hardening_time = 7; // ticks
constexpr std::uint16_t blinking_life = 74; // ticks left from which a line blinks
constexpr std::uint16_t blink_start = 8, blink_end = 4;
constexpr float fade_acceleration = 0.01F;

} // namespace

TrapLine::TrapLine(const math::Point& start_, Bullet* bullet_, unsigned short lifeTicks_,
                   bool horizontal_)
    : start(start_), bullet(bullet_), lifeTicks(lifeTicks_), horizontal(horizontal_),
      blinkTicks(blink_start) {
    subscribeToAll();
    physics = new physics::PhysicsObject(start, true, false, true, true);

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->depth = line_depth;
    line = base->createGraphic<GLine>();
    line->setColour1(&ColourManager::Instance().getV("Line Colour"));
    line->lineWidth = line_width;
    line->start = start;
    line->end = bullet != nullptr ? bullet->physics->position : start;
}

void TrapLine::receiveMessage(const PlayerDead*) {
    fading = true;
    fadeScale = 1.0F;
    fadeStep = fade_acceleration;
}

void TrapLine::fakeKill(bool alsoBullet) {
    fakeDone = true;
    if (alsoBullet && bullet != nullptr) bullet->fakeKill();
}

void TrapLine::updateBullet() {
    if (bullet == nullptr || !bullet->fakeKilled) return;
    line->end = bullet->physics->position;
    bullet = nullptr;
}

void TrapLine::killBullet() {
    if (bullet == nullptr) return;
    end = bullet->physics->position;
    bullet->dead = true;
    bullet = nullptr;
    solid = true;
}

void TrapLine::process() {
    if (fading) return fade();
    if (!solid) harden();
    if (bullet == nullptr) age();
}

void TrapLine::fade() {
    fadeStep += fade_acceleration;
    fadeScale -= fadeStep;
    line->setScale(fadeScale);
    if (fadeScale <= 0.0F) fakeKill(true);
}

void TrapLine::harden() {
    if (++solidDelay >= hardening_time) solid = true;
}

void TrapLine::age() {
    if (--lifeTicks == 0) {
        fakeDone = true;
        return;
    }
    if (lifeTicks > blinking_life || --blinkTicks != blink_end) return;
    blinkTicks = blink_start;
    graphics->setEnabled(!graphics->enabled);
}

void TrapLine::update() {
    if (bullet != nullptr) {
        line->end = bullet->physics->position;
        if (bullet->fakeKilled) {
            finished = true;
            killBullet();
        } else {
            end = bullet->physics->position;
        }
    }
    if (endWithBullet && finished) fakeKill(true);
}
