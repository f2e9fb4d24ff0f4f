#include "game/SillyGrid.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

constexpr unsigned int line_step = 4;

} // namespace

void SillyGrid::render() {
    begin();
    const primitives::Box view = Camera::Instance().getViewBox();
    draw::begin(SHAPE_LINES);
    for (unsigned int i = 0; i < rows; i += line_step) {
        for (unsigned int j = 0; j < planes; j += line_step) {
            const double y = view.bottom + i * spacing, z = view.bottom + j * spacing;
            draw::vertex3D(view.left, y, z);
            draw::vertex3D(view.right, y, z);
        }
    }
    draw::end();
}
