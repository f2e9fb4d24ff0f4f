#pragma once

#include "Framework/math/Vector.h"

#include <cstdint>

// Every message of the system: who sends it, and what for. Fields are read only during delivery.

class Bullet;

// The music.
struct PlaySong {
    std::int16_t songId = -1; ///< index into the song list; -1 for a random one
};
struct StopSong {};
struct PauseGame {
    bool paused = false;
};

// One for each sound effect.
struct SoundBullet {};
struct SoundBuletHit {}; ///< spelt so since its first day
struct SoundSquare {};
struct SoundAlive {};
struct SoundDeath {};
struct SoundClearBomb {};
struct SoundImmuneBomb {};
struct SoundPup {};
struct SoundBad {}; ///< a shot that gets no line
struct SoundPause {};

/// A shot asks for its line.
struct PhysicsLineMessage {
    quorva::math::Point position; ///< where the line begins
    Bullet* bullet = nullptr;     ///< draws it; owned by the engine
    bool horizontal = false;      ///< fired left or right
};

/// A triangle has touched the player.
struct PlayerDead {
    bool gameOver = false; ///< no life is left
};

/// A clear bomb goes off.
struct KillAllTriangles {};

namespace quorva::messages {

struct ResetAudio {};
struct ResetVideo {};

struct EndGame {};  ///< the program ends
struct EndLevel {}; ///< the game ends and the menu comes back
struct LoadLevel {
    bool endCurrentLevel = false;
};
struct MenuLoad {
    bool active = false;
};
struct MenuUnLoad {
    bool active = false;
};

/// What the player at the keys wants.
struct PlayerInput {
    math::Vector move;  ///< held until keys change; only the signs of x and y are read
    math::Vector fire;  ///< x and y each -1, 0 or +1; for this message only
    bool pause = false; ///< for this message only
    std::uint16_t player = 0;
};

/// All false ends a held slide.
struct MenuMove {
    bool select = false;
    bool escape = false;
    bool up = false;
    bool down = false;
    bool left = false;
    bool right = false;
    bool unread1 = false;
    bool unread2 = false;
};

struct LiteralCharacter {
    char character = 0;
};

/// For driving the physics from outside.
struct PhysicsController {
    bool resetVelocities = false;
    bool enable = false;
    bool runTests = false;
};

} // namespace quorva::messages
