#include "game/Bullet.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/physics/PhysicsObject.h"

using namespace quorva;

namespace {

constexpr double field_margin = 0.25; // world units past the edge at which a bullet ends
constexpr double spin_step = 16.0;    // degrees per tick
constexpr double fade_step = 0.1;     // alpha per tick
constexpr double arm_length = 1.0;    // of the cross, world units
constexpr float arm_width = 4.0F;

} // namespace

Bullet::Bullet(math::Point position, const math::Vector& velocity)
    : colour(ColourManager::Instance().getV("Line Colour")) {
    subscribe<messages::EndLevel>(this);
    physics = new physics::PhysicsObject(position, true, false, true, true);
    physics->type = physics::shape_point;
    physics->velocity = velocity;

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_bullets;
    base->position = &physics->position;
    base->rotation = &rotation;
    for (const math::Point& arm :
         {math::Point(arm_length, 0.0, 0.0), math::Point(0.0, arm_length, 0.0)}) {
        auto* const line = base->createGraphic<GLine>();
        line->start = arm * -1.0;
        line->end = arm;
        line->lineWidth = arm_width;
        line->setColour1(&colour);
    }
}

void Bullet::fakeKill() {
    dying = true;
    fakeKilled = true;
}

bool Bullet::hasLeftField() const {
    const primitives::Box field = graphics::Camera::Instance().getViewBox();
    const math::Point& p = physics->position;
    return p.x - field_margin > field.right || p.x + field_margin < field.left ||
           p.y - field_margin > field.top || p.y + field_margin < field.bottom;
}

void Bullet::noticeHit() {
    if (!physics->collided) return;
    fakeKill();
    hitTriangle = true;
}

void Bullet::process() {
    if (hasLeftField()) fakeKill();
    noticeHit();
    spinAngle += spin_step;
    math::rotate(spinAngle, math::z_axis, rotation);
    if (!dying) return;
    colour.setAlpha(static_cast<float>(colour.alpha() - fade_step));
    if (colour.alpha() <= 0.0F) dead = true;
}

void Bullet::update() {
    noticeHit();
}
