#include "game/PUPLineIcon.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

void PUPLineIcon::render() {
    begin();
    draw::setLineWidth(1.0F);
    draw::begin(SHAPE_LINES);
    for (const double y : {0.25, 0.0, -0.25}) {
        draw::vertex2D(-0.25, y);
        draw::vertex2D(0.25, y);
    }
    draw::end();
}
