#pragma once

#include "tests/support/Field.h"

#include <vector>

namespace bench {

/// Keeps a field as it was furnished: next to nothing spawns, no bomb and no power-up comes. To be
/// called before every tick.
void quieten(Field& field);

/// Lets the player take part in all tests; it stays invulnerable.
void exposePlayer(Field& field);

/// Lines from edge to edge, two world units apart about the origin: eight across and eight upright
/// close 784 rectangles.
void crossLines(Field& field, int across, int upright);

/// Bursts of a hundred rays each, fully grown.
void addBursts(Field& field, int count);

/// Triangles outside all rectangles, many of them on the ends of lines, which stop them.
class Crowd {
public:
    explicit Crowd(int count);
    void sway(); ///< reverses their velocities, so that they never get away

private:
    std::vector<Triangle*> triangles; ///< the engine owns them
};

/// What a busy field has.
struct Furniture {
    int triangles = 200;
    int linesEachWay = 8;
    int bursts = 2;
};

/// Everything that a frame can have to show at once: that, the border lit by 60 triangles more, the
/// display.
void furnishFrame(Field& field, const Furniture& furniture = {});

} // namespace bench
