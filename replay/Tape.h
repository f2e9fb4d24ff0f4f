#pragma once

#include "platform/fmodex/fmodex.h"

#include <SDL.h>

#include <cstdint>

// The layer between the game and what comes from outside: clock, events, joysticks, songs, and the
// end of each frame. A program that links it (kov_replay) has the game's calls come here.

namespace quorva::replay {

/// What the layer does by itself: everything goes through to the libraries.
class Tape {
public:
    Tape() = default;
    virtual ~Tape() = default;
    Tape(const Tape&) = delete;
    Tape& operator=(const Tape&) = delete;

    virtual std::uint32_t clock(); ///< ms
    virtual int poll(SDL_Event* event);
    virtual int joysticks();
    virtual SDL_Joystick* openJoystick(int index);
    virtual std::int16_t axis(SDL_Joystick* joystick, int index);
    virtual FMOD_RESULT openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song);
    virtual FMOD_RESULT songLength(FMOD_SOUND* song, unsigned int* ms);
    virtual void sleep(std::uint32_t microseconds);
    virtual SDL_Surface* openWindow(int width, int height, int depth, std::uint32_t flags);
    virtual void setViewport(int width, int height); ///< the game's picture, pixels
    virtual float lineWidth(float width) { return width; }
    virtual bool draws() { return true; }  ///< else frames stay empty
    virtual bool sounds() { return true; } ///< else effects stay silent
    virtual void endFrame();               ///< shows it

protected:
    static void placeViewport(int x, int y, int width, int height); ///< in the window
};

/// While it lasts, the calls go to this tape; then to the libraries again. One at a time.
class Insertion {
public:
    /// @param tape not owned
    explicit Insertion(Tape& tape);
    ~Insertion();
    Insertion(const Insertion&) = delete;
    Insertion& operator=(const Insertion&) = delete;
};

} // namespace quorva::replay
