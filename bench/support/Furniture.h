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

/// Two bursts of a hundred rays each, fully grown.
void addBursts(Field& field);

/// Triangles outside all rectangles, many of them on the ends of lines, which stop them.
class Crowd {
public:
    explicit Crowd(int count);
    void sway(); ///< reverses their velocities, so that they never get away

private:
    std::vector<Triangle*> triangles; ///< the engine owns them
};

/// Everything that a frame can have to show at once: 200 triangles, 16 lines, two bursts of a
/// hundred rays, the border lit by 60 more, the display.
void furnishFrame(Field& field);

} // namespace bench
