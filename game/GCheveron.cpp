#include "game/GCheveron.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

void GCheveron::render() {
    begin();
    draw::setLineWidth(lineWidth);
    draw::begin(SHAPE_LINE_STRIP);
    draw::vertex3D(left);
    draw::vertex3D(tip);
    draw::vertex3D(right);
    draw::end();
}
