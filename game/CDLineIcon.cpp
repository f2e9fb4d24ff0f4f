#include "game/CDLineIcon.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

void CDLineIcon::render() {
    begin();
    draw::setLineWidth(1.0F);
    draw::begin(SHAPE_LINE_LOOP);
    draw::vertex2D(-0.25, 0.25);
    draw::vertex2D(0.25, 0.25);
    draw::vertex2D(0.25, -0.25);
    draw::vertex2D(-0.25, -0.25);
    draw::end();
}
