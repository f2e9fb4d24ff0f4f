#include "game/GTriangle.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/LineWidth.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

constexpr double line_width = 4.0; // pixels on the reference screen

} // namespace

void GTriangle::render() {
    if (deathMode) return renderDeathMode();
    begin();
    draw::setLineWidth(math::lineWidthScale(line_width));
    draw::begin(SHAPE_LINE_LOOP);
    for (const math::Point& point : points)
        draw::vertex3D(point);
    draw::end();
}

void GTriangle::renderDeathMode() {
    begin();
    draw::setLineWidth(math::lineWidthScale(line_width));
    draw::begin(SHAPE_LINES);
    for (std::size_t i = 0; i < points.size(); ++i) {
        draw::vertex3D(points[i]);
        draw::vertex3D(points[(i + 1) % points.size()]);
    }
    draw::end();
}
