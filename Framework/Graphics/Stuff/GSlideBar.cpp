#include "Framework/Graphics/Stuff/GSlideBar.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

void plotQuad(double halfWidth, double halfHeight) {
    draw::begin(SHAPE_QUADS);
    draw::vertex2D(-halfWidth, -halfHeight);
    draw::vertex2D(halfWidth, -halfHeight);
    draw::vertex2D(halfWidth, halfHeight);
    draw::vertex2D(-halfWidth, halfHeight);
    draw::end();
}

} // namespace

void GSlideBar::render() {
    begin();
    plotQuad(halfWidth, halfHeight);
    if (value == nullptr) return;
    draw::pushMatrix();
    draw::translate(2.0 * halfWidth * (*value - 0.5), 0.0, 0.0);
    plotQuad(3.0 * halfHeight, 3.0 * halfHeight);
    draw::popMatrix();
}
