#pragma once

#include "Framework/math/Vector.h"

#include <cstdint>

// Every message of the system. "A -> B": A publishes it, B receives it. Fields are read only
// during delivery.

class Bullet;

// The music: -> FModMP3Input.

/// GameLevel, as it starts.
struct PlaySong {
    std::int16_t songId = -1; ///< index into the song list; -1 for a random one
};
/// GameBase, at the end of a level.
struct StopSong {};
/// GameLevel, on the pause key: the music halts or goes on.
struct PauseGame {
    bool paused = false;
};

// The effects: -> FModMP3Input, which plays the sound of that name.

struct SoundBullet {};     ///< PlayerCharacter: a shot
struct SoundBuletHit {};   ///< PhysicsProcessor: a bullet ends at a triangle; always spelt so
struct SoundSquare {};     ///< MarvoClass: a rectangle pays out
struct SoundAlive {};      ///< PlayerCharacter: it can be killed again
struct SoundDeath {};      ///< PlayerCharacter: it has died
struct SoundClearBomb {};  ///< PlayerCharacter: it has taken one
struct SoundImmuneBomb {}; ///< PlayerCharacter: it has taken one
struct SoundPup {};        ///< PlayerCharacter: it has taken another power-up
struct SoundBad {};        ///< PhysicsProcessor: a shot gets no line
struct SoundPause {};      ///< GameLevel: the game halts; going on is silent

/// PlayerCharacter -> PhysicsProcessor: a shot asks for its line.
struct PhysicsLineMessage {
    quorva::math::Point position; ///< where the line begins
    Bullet* bullet = nullptr;     ///< draws it; owned by the engine
    bool horizontal = false;      ///< fired left or right
};

/// MarvoClass: a triangle has touched the player. -> GameBase and PhysicsProcessor note the end of
/// the game, PlayerCharacter lies dead, TrapLines fade, Triangles die, GameLevel eases the game.
struct PlayerDead {
    bool gameOver = false; ///< no life is left
};

/// PlayerCharacter, on a clear bomb -> Triangle: all die.
struct KillAllTriangles {};

namespace quorva::messages {

struct ResetAudio {}; ///< ConfigMenu -> FModMP3Input, which ignores it
struct ResetVideo {}; ///< ConfigMenu -> Renderer: the video mode is set anew

/// InputHandler and MenuInputHandler, as the window is closed; MainMenu, on "Exit" -> GameBase:
/// the program ends.
struct EndGame {};
/// InputHandler, on Menu Escape; PhysicsProcessor, after the last death; GameBase, on LoadLevel
/// -> GameBase brings the menu back, PhysicsProcessor forgets its lines, all actors of the level
/// flag themselves dead.
struct EndLevel {};
/// MainMenu -> GameBase: a game starts.
struct LoadLevel {
    bool endCurrentLevel = false; ///< a running one ends first; the menu never asks for that
};
/// Nobody -> GameBase: the menu over a frozen level.
struct MenuLoad {
    bool active = false; ///< else it is ignored
};
/// Nobody -> GameBase: back to the level, which stays frozen.
struct MenuUnLoad {
    bool active = false; ///< else it is ignored
};

/// InputHandler -> PlayerCharacter moves and fires, GameLevel pauses.
struct PlayerInput {
    math::Vector move;        ///< held until keys change; only the signs of x and y are read
    math::Vector fire;        ///< x and y each -1, 0 or +1; for this message only
    bool pause = false;       ///< for this message only
    std::uint16_t player = 0; ///< index; always 0
};

/// MenuInputHandler -> MainMenu, ConfigMenu, GameOverScreen. One flag is set; none ends a held
/// slide.
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

/// MenuInputHandler::sendNumber -> nobody.
struct LiteralCharacter {
    char character = 0;
};

/// Nobody -> PhysicsProcessor: drives it from outside.
struct PhysicsController {
    bool resetVelocities = false; ///< to zero
    bool enable = false;          ///< taken over with resetVelocities; nothing reads it
    bool runTests = false;        ///< one round of collision tests
};

} // namespace quorva::messages
