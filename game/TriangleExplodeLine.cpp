#include "game/TriangleExplodeLine.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/math/MTRand.h"
#include "Framework/physics/PhysicsObject.h"

using namespace quorva;

namespace {

math::MTRand_int32 Rand;

constexpr double drift_divisor = 10.0; // leaves 0.1 world units per tick and tick
constexpr double field_margin = 5.0;   // world units outside the field at which it ends
constexpr double spin_range = 20.0;    // degrees per tick
constexpr float line_width = 4.0F;

} // namespace

TriangleExplodeLine::TriangleExplodeLine(const math::Point& position, const math::Point& start_,
                                         const math::Point& end_, const math::Vector& drift_)
    : start(start_), end(end_), drift(drift_) {
    subscribe<messages::EndLevel>(this);
    physics = new physics::PhysicsObject(position, false, false, false, false); // moves, no more
    drift.x /= drift_divisor;
    drift.y /= drift_divisor;

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->position = &physics->position;
    base->rotation = &rotation;
    line = base->createGraphic<GLine>();
    line->start = start;
    line->end = end;
    line->lineWidth = line_width;
    line->setColour1(&ColourManager::Instance().getV("Badguy Colour"));
}

bool TriangleExplodeLine::isFarOutside() const {
    const primitives::Box field = graphics::Camera::Instance().getViewBox();
    const math::Point& p = physics->position;
    return p.y > field.top + field_margin || p.y < field.bottom - field_margin ||
           p.x > field.right + field_margin || p.x < field.left - field_margin;
}

void TriangleExplodeLine::process() {
    physics->accelerate(drift);
    if (isFarOutside()) dead = true;
    spinAngle += math::randomFraction(Rand) * spin_range;
    math::rotate(spinAngle, math::z_axis, rotation);
}
