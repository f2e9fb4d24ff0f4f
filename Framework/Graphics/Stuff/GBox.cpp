#include "Framework/Graphics/Stuff/GBox.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void GBox::render() {
    begin();
    plot();
}

void GBox::plot() const {
    draw::begin(SHAPE_QUADS);
    draw::vertex2D(box.left, box.bottom);
    draw::vertex2D(box.right, box.bottom);
    draw::vertex2D(box.right, box.top);
    draw::vertex2D(box.left, box.top);
    draw::end();
}

} // namespace quorva::graphics
