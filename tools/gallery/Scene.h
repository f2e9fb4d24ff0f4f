#pragma once

class GameBase;

namespace gallery {

/// What of a running game can be seen, counted.
struct Scene {
    explicit Scene(const GameBase& game);

    int triangles = 0; ///< in view
    int stuck = 0;     ///< of these, held by a line
    int lines = 0;
    int splinters = 0; ///< sides of burst triangles, in view
    int linePowerUps = 0, cooldownPowerUps = 0, rays = 0;
    int clearBombs = 0, immuneBombs = 0;
    float square = 0.0F; ///< alpha of the brightest effect of a caught rectangle
    float pulse = 0.0F;  ///< the same of a bomb's pulse
    int deathTicks = 0;  ///< left of the player's death
    bool playerVisible = false;
    bool playerHigh = false; ///< in the row of the display, or just below
    unsigned int tick = 0;   ///< of the game
};

} // namespace gallery
