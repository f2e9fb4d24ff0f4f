#pragma once

#include "tests/support/Field.h"

#include <vector>

namespace bench {

/// So that a field stays as it was furnished; to be called before every tick. Next to nothing
/// spawns then, and no bomb and no power-up comes.
void quieten(Field& field);

/// Takes part in all tests, but cannot die.
void exposePlayer(Field& field);

/// Lines from edge to edge, two world units apart about the origin: eight across and eight upright
/// close 784 rectangles.
void crossLines(Field& field, int across, int upright);

/// Two bursts of a hundred rays each, fully grown.
void addBursts(Field& field);

/// Triangles outside of all rectangles, many of them upon the ends of lines, which hold them.
class Crowd {
public:
    explicit Crowd(int count);
    void sway(); ///< turns them round, so that they stay where they are for ever

private:
    std::vector<Triangle*> triangles; ///< the engine owns them
};

/// All that a frame can have to show at once: 200 triangles, 16 lines, two bursts of a hundred
/// rays, the border lit by 60 more, the display.
void furnishFrame(Field& field);

} // namespace bench
