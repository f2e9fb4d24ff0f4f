#include "game/PowerUpLines.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/math/Elementary.h"
#include "Framework/math/MTRand.h"
#include "Framework/physics/PhysicsObject.h"

using namespace quorva;

namespace {

math::MTRand_int32 Rand;

constexpr double depth_step = 0.1;
constexpr std::size_t max_rays = 100;
constexpr double ray_threshold = 0.9;    // a draw above this starts a ray
constexpr double first_length = 0.01;    // world units
constexpr double full_length = 60.0;     // world units, well past the field
constexpr double growth_step = 0.01;     // world units per tick and tick
constexpr double first_spin_range = 8.0; // degrees per tick
constexpr double spin_step = 0.1;        // degrees per tick and tick
constexpr double fade_step = 0.00125;    // alpha per tick and ray

void placeEnd(const ParticleLine& ray) {
    const double radians = ray.angle * math::pi / 180.0;
    const math::SinCos direction = math::sinCos(radians);
    ray.line->end = math::Point(direction.cos * ray.length, direction.sin * ray.length, 0.0);
}

} // namespace

double PowerUpLines::pupzindex = 0.0;

PowerUpLines::PowerUpLines(const math::Point& position, const graphics::Colour* colour_,
                           bool reverse_)
    : colour(*colour_), reverse(reverse_) {
    subscribe<messages::EndLevel>(this);
    physics = new physics::PhysicsObject(position, false, false, false, false); // a mere place
    pupzindex += depth_step;

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->depth = static_cast<float>(pupzindex);
    base->position = &physics->position;
    base->rotation = &rotation;
}

void PowerUpLines::process() {
    if (!cleaningUp) return grow();
    spin();
    fade();
}

void PowerUpLines::grow() {
    // A full burst draws too, as the order of draws is part of the game.
    if (math::randomFraction(Rand) > ray_threshold && rays.size() < max_rays) addRay();
    for (ParticleLine& ray : rays) {
        if (ray.length >= full_length) continue;
        ray.growth += growth_step;
        ray.length += ray.growth;
        placeEnd(ray);
    }
}

void PowerUpLines::addRay() {
    ParticleLine ray;
    ray.line = getGraphics()->createGraphic<GLine>(0);
    ray.line->start = math::zero_point;
    ray.angle = math::randomFraction(Rand) * 360.0;
    ray.length = first_length;
    ray.growth = math::randomFraction(Rand);
    ray.line->setColour1(&colour);
    placeEnd(ray);
    rays.push_back(ray);
}

void PowerUpLines::spin() {
    if (spinSpeed == 0.0) {
        spinSpeed = math::randomFraction(Rand) * first_spin_range;
        if (reverse) spinSpeed = -spinSpeed;
    }
    spinSpeed += reverse ? -spin_step : spin_step;
    spinAngle += spinSpeed;
    math::rotate(spinAngle, math::z_axis, rotation);
}

void PowerUpLines::fade() {
    bool seen = false;
    for (std::size_t i = 0; i < rays.size(); ++i) {
        colour.setAlpha(static_cast<float>(colour.alpha() - fade_step));
        seen = seen || colour.alpha() > 0.0F;
    }
    if (!seen) dead = true; // a burst without rays goes at once
}
