#include "platform/standins/VirtualSDL.h"

namespace quorva::standins {

VirtualSDL& sdl() {
    static auto* const state = new VirtualSDL; // outlives every singleton
    return *state;
}

namespace {

SDL_Event& pushEvent(Uint8 type) {
    SDL_Event event = {};
    event.type = type;
    sdl().events.push_back(event);
    return sdl().events.back();
}

} // namespace

void pushKey(int symbol, bool down) {
    SDL_Event& event = pushEvent(down ? SDL_KEYDOWN : SDL_KEYUP);
    event.key.state = down ? SDL_PRESSED : SDL_RELEASED;
    event.key.keysym.sym = static_cast<SDLKey>(symbol);
}

void pushButton(int button, bool down) {
    SDL_Event& event = pushEvent(down ? SDL_JOYBUTTONDOWN : SDL_JOYBUTTONUP);
    event.jbutton.button = static_cast<Uint8>(button);
    event.jbutton.state = down ? SDL_PRESSED : SDL_RELEASED;
}

void pushAxisMotion() {
    pushEvent(SDL_JOYAXISMOTION);
}

void pushQuit() {
    pushEvent(SDL_QUIT);
}

} // namespace quorva::standins

using quorva::standins::sdl;

extern "C" {

Uint32 SDL_GetTicks() {
    return sdl().ticks;
}

void SDL_Delay(Uint32 ms) {
    sdl().ticks += ms;
    if (sdl().onDelay) sdl().onDelay();
}

int SDL_PollEvent(SDL_Event* event) {
    if (sdl().events.empty()) return 0;
    *event = sdl().events.front();
    sdl().events.pop_front();
    return 1;
}

} // extern "C"
