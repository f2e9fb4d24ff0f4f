// Clock and events. The page sends keys, buttons and axes.

#include "platform/web/sdl/Joystick.h"

#include <SDL.h>
#include <emscripten.h>

#include <deque>

extern "C" double kovClock(); ///< ms, while the game does not stand still

namespace {

constexpr std::size_t most_events = 127; ///< that wait, as in SDL

std::deque<SDL_Event> events;

void push(const SDL_Event& event) {
    if (events.size() < most_events) events.push_back(event);
}

} // namespace

extern "C" {

Uint32 SDL_GetTicks() {
    return static_cast<Uint32>(static_cast<Uint64>(kovClock()));
}

int SDL_PollEvent(SDL_Event* event) {
    if (events.empty()) return 0;
    *event = events.front();
    events.pop_front();
    return 1;
}

/// @param symbol SDL's, of the key
EMSCRIPTEN_KEEPALIVE void kovKey(int symbol, bool down) {
    SDL_Event event = {};
    event.type = down ? SDL_KEYDOWN : SDL_KEYUP;
    event.key.state = down ? SDL_PRESSED : SDL_RELEASED;
    event.key.keysym.sym = static_cast<SDLKey>(symbol);
    push(event);
}

EMSCRIPTEN_KEEPALIVE void kovButton(int button, bool down) {
    SDL_Event event = {};
    event.type = down ? SDL_JOYBUTTONDOWN : SDL_JOYBUTTONUP;
    event.jbutton.button = static_cast<Uint8>(button);
    event.jbutton.state = down ? SDL_PRESSED : SDL_RELEASED;
    push(event);
}

/// @param position -32768 to 32767
EMSCRIPTEN_KEEPALIVE void kovAxis(int axis, int position) {
    quorva::web::setAxis(axis, static_cast<Sint16>(position));
    SDL_Event event = {};
    event.type = SDL_JOYAXISMOTION;
    event.jaxis.axis = static_cast<Uint8>(axis);
    event.jaxis.value = static_cast<Sint16>(position);
    push(event);
}

} // extern "C"
