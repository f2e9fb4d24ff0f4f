// The window and the joysticks of the stand-in for SDL. Apart from clock and events, so that a
// program can have those with a real window.

#include "platform/standins/GLRecorder.h"
#include "platform/standins/VirtualSDL.h"

#include <sstream>

using quorva::standins::glRecorder;
using quorva::standins::sdl;

struct _SDL_Joystick {
    int index;
};

namespace {

SDL_Surface surface;
/// A line among the calls of GL.
template <class... Parts>
void note(const Parts&... parts) {
    if (!glRecorder().recording) return;
    std::ostringstream line;
    (line << ... << parts);
    glRecorder().note(line.str());
}

std::array<_SDL_Joystick, 4> joysticks = {{{0}, {1}, {2}, {3}}};

} // namespace

extern "C" {

int SDL_Init(Uint32) {
    return 0;
}
Uint32 SDL_WasInit(Uint32 flags) {
    return flags;
}
void SDL_Quit() {
    ++sdl().quits;
}
char* SDL_GetError() {
    static char text[] = "no such mode";
    return text;
}

SDL_Surface* SDL_SetVideoMode(int width, int height, int depth, Uint32 flags) {
    note("SDL_SetVideoMode ", width, ' ', height, ' ', depth,
         (flags & SDL_OPENGL) != 0 ? " OPENGL" : "",
         (flags & SDL_FULLSCREEN) != 0 ? " FULLSCREEN" : "");
    sdl().modes.push_back({width, height, depth, flags});
    if (sdl().onMode) sdl().onMode();
    if (sdl().refusedModes == 0) return &surface;
    --sdl().refusedModes;
    return nullptr;
}

int SDL_GL_SetAttribute(SDL_GLattr attribute, int value) {
    note("SDL_GL_SetAttribute ", attribute, ' ', value);
    return 0;
}
void SDL_GL_SwapBuffers() {
    note("SDL_GL_SwapBuffers");
    ++sdl().swaps;
    if (sdl().onSwap) sdl().onSwap();
}
int SDL_ShowCursor(int toggle) {
    note("SDL_ShowCursor ", toggle);
    return toggle;
}
void SDL_WM_SetCaption(const char* title, const char* iconTitle) {
    note("SDL_WM_SetCaption \"", title, "\" \"", iconTitle, '"');
}
void SDL_WM_SetIcon(SDL_Surface* icon, Uint8*) {
    note("SDL_WM_SetIcon ", icon == nullptr ? "nothing" : "as loaded");
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* mode) {
    static SDL_RWops opened;
    note("SDL_RWFromFile ", file, ' ', mode);
    return &opened;
}
SDL_Surface* SDL_LoadBMP_RW(SDL_RWops* source, int freeSource) {
    note("SDL_LoadBMP_RW ", source == nullptr ? "nothing" : "the file", ' ', freeSource);
    return source == nullptr ? nullptr : &surface;
}
void SDL_FreeSurface(SDL_Surface*) {
    note("SDL_FreeSurface");
}

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
