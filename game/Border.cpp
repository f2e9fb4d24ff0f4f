#include "game/Border.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/physics/PhysicsObject.h"

using namespace quorva;

namespace {

constexpr double inset = 0.1;         // of the segments from the edge, world units
constexpr double width_share = 0.1;   // line width, by the field's width
constexpr double margin_share = 0.25; // reach of the radar, by the field's width

/// The segment at `value` along a side from `low` to `high`; beyond its ends, the first or last.
unsigned int segmentAt(double value, double low, double high) {
    if (value < low) return 0;
    const double index = (value - low) / (high - low) * Border::segment_count;
    if (value >= high || index >= Border::segment_count) return Border::segment_count - 1;
    return index >= 0.0 ? static_cast<unsigned int>(index) : 0; // not-a-number: the first
}

} // namespace

struct Border::Field : primitives::Box {
    Field() : Box(graphics::Camera::Instance().getViewBox()) {}
    bool holds(const math::Point& p) const {
        return p.x > left && p.x < right && p.y > bottom && p.y < top;
    }
    double margin() const { return (right - left) * margin_share; }
    unsigned int alongX(const math::Point& p) const { return segmentAt(p.x, left, right); }
    unsigned int alongY(const math::Point& p) const { return segmentAt(p.y, bottom, top); }
};

Border::Border() {
    subscribe<messages::EndLevel>(this);
    getGraphics()->getBaseLayer()->layer = graphics::layer_world;

    const Field field;
    const double width = field.right - field.left;
    const math::Vector right(width / segment_count, 0.0, 0.0);
    const math::Vector up(0.0, (field.top - field.bottom) / segment_count, 0.0);
    const float lineWidth = static_cast<float>(width * width_share);
    // Not by Side: segments are drawn in the order in which they are made.
    addSegments(side_left, {field.left + inset, field.bottom, 0.0}, up, lineWidth);
    addSegments(side_right, {field.right - inset, field.bottom, 0.0}, up, lineWidth);
    addSegments(side_top, {field.left, field.top - inset, 0.0}, right, lineWidth);
    addSegments(side_bottom, {field.left, field.bottom + inset, 0.0}, right, lineWidth);
}

void Border::addSegments(Side side, const math::Point& first, const math::Vector& along,
                         float lineWidth) {
    const graphics::Colour& colour = ColourManager::Instance().getV("Border Colour");
    math::Point from = first;
    for (unsigned int i = 0; i < segment_count; ++i) {
        GLine* const line = getGraphics()->createGraphic<GLine>(0);
        line->start = from;
        from += along;
        line->end = from;
        line->lineWidth = lineWidth;
        colours[side][i] = colour;
        line->setColour1(&colours[side][i]);
        lines[side][i] = line;
    }
}

void Border::process() {
    darken();
    const Field field;
    for (const auto& [key, entity] : Engine::Instance().entities)
        if (entity->physics != nullptr) notice(entity->physics->position, field);
}

void Border::darken() {
    for (unsigned int side = 0; side < side_count; ++side)
        for (unsigned int i = 0; i < segment_count; ++i) {
            colours[side][i].setAlpha(0.0F);
            lines[side][i]->active = false;
        }
}

void Border::notice(const math::Point& p, const Field& field) {
    if (field.holds(p)) return;
    const double margin = field.margin();
    if (p.x < field.left) light(side_left, field.alongY(p), field.left - p.x, margin);
    if (p.x > field.right) light(side_right, field.alongY(p), p.x - field.right, margin);
    if (p.y < field.bottom) light(side_bottom, field.alongX(p), field.bottom - p.y, margin);
    if (p.y > field.top) light(side_top, field.alongX(p), p.y - field.top, margin);
}

void Border::light(Side side, unsigned int index, double distance, double margin) {
    graphics::Colour& colour = colours[side][index];
    const double share = distance / margin;
    double alpha = (share < 1.0 ? 1.0 - share : 0.0) + colour.alpha();
    if (alpha >= 1.0) alpha = 1.0;
    colour.setAlpha(static_cast<float>(alpha));
    lines[side][index]->active = true;
}
