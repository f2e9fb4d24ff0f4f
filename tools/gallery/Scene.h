#pragma once

class GameBase;

namespace gallery {

/// What of a running game can be seen, counted.
struct Scene {
    explicit Scene(const GameBase& game);

    int triangles = 0; ///< in view
    int stuck = 0;     ///< of these, held by a line
    int lines = 0;
    int deathTicks = 0; ///< left of the player's death
    bool playerVisible = false;
    bool playerHigh = false; ///< in the row of the display, or just below
};

} // namespace gallery
