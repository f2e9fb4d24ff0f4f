#include "Framework/Graphics/Stuff/GOutlinedCircle.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/math/Elementary.h"
#include "Framework/math/Quaternion.h"

using namespace quorva;
using namespace quorva::graphics;

void GOutlinedCircle::render() {
    begin();
    draw::setLineWidth(lineWidth);
    draw::disableDepthTest();
    draw::begin(SHAPE_LINE_LOOP);
    for (unsigned int i = 0; i < resolution; ++i) {
        const double angle = i * 360.0 / resolution * math::pi / 180.0;
        draw::vertex2D(radius * math::cos(angle), radius * math::sin(angle));
    }
    draw::end();
    draw::enableDepthTest();
}
