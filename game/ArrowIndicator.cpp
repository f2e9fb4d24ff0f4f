#include "game/ArrowIndicator.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Managers/ColourManager.h"
#include "game/GCheveron.h"

#include <algorithm>

using namespace quorva;

namespace {

// By chevron, nearest first: acceleration in world units, growth in scale, per tick.
constexpr double default_speeds[] = {0.1, 0.075, 0.05, 0.025};
constexpr double default_scales[] = {0.3, 0.25, 0.2, 0.15};
constexpr std::uint16_t restore_duration = 50; // ticks

/// Moves a chevron along the arrow and scales it, both through single precision.
void drift(GCheveron& chevron, double distance, double growth) {
    chevron.position.y = static_cast<float>(chevron.position.y + distance);
    chevron.position.z = 0.0;
    chevron.scale = math::Vector(static_cast<float>(chevron.scale.x + growth),
                                 static_cast<float>(chevron.scale.y + growth),
                                 static_cast<float>(chevron.scale.z + growth));
}

} // namespace

ArrowIndicator::ArrowIndicator(const math::Point* follow_, double angle_, double offset_)
    : follow(follow_), angle(angle_), offset(offset_) {
    subscribe<messages::EndLevel>(this);
    math::rotate(angle, math::z_axis, rotation);

    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->position = follow;
    base->rotation = &rotation;
    const graphics::Colour& colour = ColourManager::Instance().getV("Player Colour");
    for (unsigned int k = 0; k < chevron_count; ++k) {
        const double shift = k * (offset / 4.0);
        const double wing = 2.0 * offset / 3.0 + shift;
        cheverons[k] = base->createGraphic<GCheveron>();
        cheverons[k]->tip = math::Point(0.0, offset + shift, 0.0);
        cheverons[k]->left = math::Point(offset / 3.0, wing, 0.0);
        cheverons[k]->right = math::Point(-offset / 3.0, wing, 0.0);
        cheverons[k]->setColour1(&colour);
    }
}

void ArrowIndicator::showUpTo(unsigned int n) {
    for (unsigned int k = 0; k < chevron_count; ++k)
        cheverons[k]->active = k < n;
}

void ArrowIndicator::fire() {
    showUpTo(chevron_count);
    firing = true;
    firedFrom = *follow;
    getGraphics()->getBaseLayer()->position = &firedFrom;
}

void ArrowIndicator::restore() {
    firing = false;
    restoring = true;
    getGraphics()->getBaseLayer()->position = follow;
    restoreTicks = restore_duration;
}

void ArrowIndicator::process() {
    if (firing)
        flyApart();
    else if (restoring)
        flyBack();
}

void ArrowIndicator::flyApart() {
    for (unsigned int k = 0; k < chevron_count; ++k) {
        inward[k] = 0.0;
        outward[k] += default_speeds[k];
        drift(*cheverons[k], outward[k], default_scales[k]);
    }
}

void ArrowIndicator::flyBack() {
    --restoreTicks;
    for (unsigned int k = 0; k < chevron_count; ++k) {
        outward[k] = 0.0;
        inward[k] -= default_speeds[k];
        drift(*cheverons[k], inward[k], -default_scales[k]);
    }
    if (restoreTicks == 0) comeToRest();
}

void ArrowIndicator::comeToRest() {
    for (GCheveron* chevron : cheverons) {
        chevron->position = math::zero_point;
        chevron->setScale(1.0);
    }
    restoring = false;
}
