#include "game/PowerUp.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GOutlinedCircle.h"
#include "Framework/physics/PhysicsObject.h"

using namespace quorva;

namespace {

constexpr double half_extent = 1.0; // world units
constexpr float circle_width = 2.0F, circle_radius = 0.5F;
constexpr unsigned int circle_resolution = 16; // points

} // namespace

PowerUp::PowerUp(const math::Point&) {
    subscribe<messages::EndLevel>(this);
}

void PowerUp::build(const math::Point& position, const graphics::Colour& colour) {
    physics = new physics::PhysicsObject(position, true, false, true, true);
    physics->boxes.emplace_back(half_extent, half_extent);

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->position = &physics->position;
    base->rotation = &physics->rotation;
    circle = base->createGraphic<GOutlinedCircle>();
    circle->setColour1(&colour);
    circle->lineWidth = circle_width;
    circle->radius = circle_radius;
    circle->resolution = circle_resolution;
}
