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
    draw::begin(SHAPE_LINES);
    for (unsigned int i = 0; i < rows; i += line_step) {
        for (unsigned int j = 0; j < planes; j += line_step) {
            const auto& camera = Camera::Instance();
            const double bottom = static_cast<float>(camera.bottom);
            const double y = bottom + i * spacing, z = bottom + j * spacing;
            draw::vertex3D(static_cast<float>(camera.left), y, z);
            draw::vertex3D(static_cast<float>(camera.right), y, z);
        }
    }
    draw::end();
}
