#include "Framework/Graphics/Stuff/GLine.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/LineWidth.h"

using namespace quorva;
using namespace quorva::graphics;

void GLine::render() {
    begin();
    draw::setLineWidth(math::lineWidthScale(lineWidth));
    draw::begin(SHAPE_LINES);
    draw::vertex3D(start);
    draw::vertex3D(end);
    draw::end();
}
