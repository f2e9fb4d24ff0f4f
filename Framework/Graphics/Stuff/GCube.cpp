#include "Framework/Graphics/Stuff/GCube.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva::graphics;

namespace {

/// Signs of the corners of the faces.
constexpr int corners[][3] = {
    {1, 1, -1},  {-1, 1, -1},  {-1, 1, 1},   {1, 1, 1},   // top
    {1, -1, 1},  {-1, -1, 1},  {-1, -1, -1}, {1, -1, -1}, // bottom
    {1, 1, 1},   {-1, 1, 1},   {-1, -1, 1},  {1, -1, 1},  // front
    {1, -1, -1}, {-1, -1, -1}, {-1, 1, -1},  {1, 1, -1},  // back
    {-1, 1, 1},  {-1, 1, -1},  {-1, -1, -1}, {-1, -1, 1}, // left
    {1, 1, -1},  {1, 1, 1},    {1, -1, 1},   {1, -1, -1}, // right
};

} // namespace

void GCube::plotFaces() const {
    draw::begin(SHAPE_QUADS);
    for (const auto& c : corners)
        draw::vertex3D(c[0] * 0.5 * sizeX, c[1] * 0.5 * sizeY, c[2] * 0.5 * sizeZ);
    draw::end();
}

void GCube::render() {
    begin();
    plotFaces();
}
