#include "game/ConvergingLines.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Timer.h"
#include "Framework/math/Elementary.h"

using namespace quorva;

namespace {

constexpr double circle_radius = 40.0; // world units
constexpr double line_speed = 2.0;     // world units per tick
constexpr float line_width = 1.5F;

} // namespace

math::MTRand_int32 ConvergingLines::Rand;

ConvergingLines::ConvergingLines(bool& seeded, std::size_t count, const graphics::Colour& colour_,
                                 float fadeStep_)
    : rotations(count), angles(count), positions(count), velocities(count), colour(colour_),
      fadeStep(fadeStep_) {
    if (!seeded) Rand.seed(Timer::Instance().getTicks());
    seeded = true;
    subscribe<messages::EndLevel>(this);
    getGraphics()->getBaseLayer()->layer = graphics::layer_world;
}

math::Point ConvergingLines::aim(std::size_t i) {
    angles[i] = math::randomFraction(Rand) * 360.0;
    math::rotate(angles[i], math::z_axis, rotations[i]);
    const double a = (angles[i] + 90.0) * math::pi / 180.0;
    const math::Point start(circle_radius * math::cos(a) + centre.x,
                            circle_radius * math::sin(a) + centre.y, 0.0);
    velocities[i] = centre - start;
    velocities[i].normalise();
    velocities[i].x *= line_speed;
    velocities[i].y *= line_speed;
    return start;
}

void ConvergingLines::addLine(std::size_t i, double halfLength) {
    const unsigned short index = getGraphics()->createNewLayer();
    graphics::RenderableThing* const layer = graphics->things[index];
    layer->position = &positions[i];
    layer->rotation = &rotations[i];
    auto* const line = layer->createGraphic<GLine>();
    line->start = math::Point(0.0, halfLength, 0.0);
    line->end = math::Point(0.0, -halfLength, 0.0);
    line->lineWidth = line_width;
    line->setColour1(&colour);
    lines.push_back(line);
}

void ConvergingLines::process() {
    for (std::size_t i = 0; i < positions.size(); ++i)
        positions[i] += velocities[i];
    colour.setAlpha(colour.alpha() - fadeStep);
    if (0.0F >= colour.alpha()) dead = true;
}
