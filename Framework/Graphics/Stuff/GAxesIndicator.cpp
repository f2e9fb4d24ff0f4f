#include "Framework/Graphics/Stuff/GAxesIndicator.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

void GAxesIndicator::render() {
    begin();
    const struct {
        const Colour& colour;
        math::Point end;
    } axes[] = {{colours::green, {length, 0.0, 0.0}},
                {colours::red, {0.0, length, 0.0}},
                {colours::blue, {0.0, 0.0, length}}};
    draw::begin(SHAPE_LINES);
    for (const auto& axis : axes) {
        draw::setColour(axis.colour);
        draw::vertex3D(math::zero_point);
        draw::vertex3D(axis.end);
    }
    draw::end();
}
