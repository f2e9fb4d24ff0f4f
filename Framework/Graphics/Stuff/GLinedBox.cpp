#include "Framework/Graphics/Stuff/GLinedBox.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

void GLinedBox::render() {
    begin();
    draw::begin(SHAPE_LINE_LOOP);
    draw::vertex2D(box.left, box.bottom);
    draw::vertex2D(box.right, box.bottom);
    draw::vertex2D(box.right, box.top);
    draw::vertex2D(box.left, box.top);
    draw::end();
}
