#pragma once

#include "Framework/Primitives/Box.h"
#include "Framework/Singleton.h"

#include <cstdint>

class PlayerCharacter;

/// The score-keeper: lives, score and extra lives of the running game, and the high score with
/// its file s.dat. The physics reports kills here.
class MarvoClass {
public:
    MarvoClass(); ///< reads the high score; 0 if there is no file

    void reset();   ///< a new game; the high score stays
    void process(); ///< every tick, by the player: at most one extra life

    unsigned long getNextLife() const; ///< the score that the next life needs to pass

    // Of the current player: during a level only.
    unsigned short getPlayerLineLength() const; ///< ticks that a finished line stands
    unsigned short numLinePUPS() const;         ///< line power-ups taken
    unsigned short numCDPUPS() const;           ///< cooldown power-ups and bombs taken

    /// A triangle has touched the player. Nothing happens while it is invulnerable.
    void killPlayer();

    /// A rectangle has caught `count` triangles: adds its score, makes its indicator and sound. If
    /// it covers the share a of the field, it is worth (1 - a)^4 * 1000 * 2 * count points.
    void killTriangles(const quorva::primitives::Box& box, unsigned short count);

    /// If the score is above the high score, raises that and writes it. A file that can't be
    /// written is ignored.
    void saveHighScore();

    std::int16_t lives;                ///< spare lives; below 0 the game is over
    std::uint32_t score;               ///< keeps its last value after a game
    PlayerCharacter* player = nullptr; ///< the engine owns it; gone once its level has ended
    double fieldArea;                  ///< square world units; fixed at first use
    std::uint16_t nextLife;            ///< number of the next extra life
    std::uint32_t highScore = 0;
};

using Marvo = quorva::ReturningSingleton<MarvoClass>;
