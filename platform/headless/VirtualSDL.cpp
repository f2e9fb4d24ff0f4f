#include "platform/headless/VirtualSDL.h"

namespace quorva::headless {

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

} // namespace quorva::headless

using quorva::headless::sdl;

struct _SDL_Joystick {
    int index;
};

namespace {

SDL_Surface surface;
std::array<_SDL_Joystick, 4> joysticks = {{{0}, {1}, {2}, {3}}};

} // namespace

extern "C" {

int SDL_Init(Uint32) {
    return 0;
}
void SDL_Quit() {
    ++sdl().quits;
}
char* SDL_GetError() {
    static char text[] = "no such mode";
    return text;
}

Uint32 SDL_GetTicks() {
    return sdl().ticks;
}

int SDL_PollEvent(SDL_Event* event) {
    if (sdl().events.empty()) return 0;
    *event = sdl().events.front();
    sdl().events.pop_front();
    return 1;
}

SDL_Surface* SDL_SetVideoMode(int width, int height, int depth, Uint32 flags) {
    sdl().modes.push_back({width, height, depth, flags});
    if (sdl().refusedModes == 0) return &surface;
    --sdl().refusedModes;
    return nullptr;
}

int SDL_GL_SetAttribute(SDL_GLattr, int) {
    return 0;
}
void SDL_GL_SwapBuffers() {
    ++sdl().swaps;
    if (sdl().onSwap) sdl().onSwap();
}
int SDL_ShowCursor(int toggle) {
    if (toggle == SDL_DISABLE) ++sdl().cursorHidden;
    return toggle;
}
void SDL_WM_SetCaption(const char* title, const char*) {
    sdl().caption = title;
}
void SDL_WM_SetIcon(SDL_Surface*, Uint8*) {}
SDL_RWops* SDL_RWFromFile(const char* file, const char*) {
    sdl().filesOpened.emplace_back(file);
    return nullptr;
}
SDL_Surface* SDL_LoadBMP_RW(SDL_RWops*, int) {
    return nullptr;
}
void SDL_FreeSurface(SDL_Surface*) {}

int SDL_NumJoysticks() {
    return sdl().joysticks;
}
int SDL_JoystickEventState(int state) {
    return state;
}
SDL_Joystick* SDL_JoystickOpen(int index) {
    return index == sdl().refusedJoystick ? nullptr : &joysticks.at(index);
}
const char* SDL_JoystickName(int) {
    return "virtual stick";
}
int SDL_JoystickNumAxes(SDL_Joystick*) {
    return 4;
}
int SDL_JoystickNumButtons(SDL_Joystick*) {
    return 16;
}
Sint16 SDL_JoystickGetAxis(SDL_Joystick* joystick, int axis) {
    return sdl().axes.at(joystick->index).at(axis);
}

} // extern "C"
