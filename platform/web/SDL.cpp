// The functions of SDL 1.2 that the game calls. The page does the window's part (script/page.js),
// and sends keys and the pad through the functions at the end.

#include "platform/web/gl/Canvas.h"
#include "platform/web/gl/Frame.h"

#include <SDL.h>
#include <emscripten.h>

#include <array>
#include <deque>

extern "C" {
double kovClock(); ///< ms, while the page is seen
void kovShowWindow(int width, int height, bool fullScreen);
void kovShowTitle(const char* title);
}

/// There is one, which stands for every pad and for the stick on a touch screen, as pads come and
/// go without notice.
struct _SDL_Joystick {
    std::array<Sint16, 4> axes;
};

namespace {

constexpr int pad_buttons = 16;
constexpr std::size_t most_events = 127; ///< that wait, as in SDL

std::deque<SDL_Event> events;
SDL_Surface surface;
_SDL_Joystick joystick;
bool frameIsSeen = true;

void push(const SDL_Event& event) {
    if (events.size() < most_events) events.push_back(event);
}

} // namespace

namespace quorva::web {

void seeFrames(bool on) {
    frameIsSeen = on;
}

} // namespace quorva::web

extern "C" {

int SDL_Init(Uint32) {
    return 0;
}
Uint32 SDL_WasInit(Uint32 flags) {
    return flags;
}
void SDL_Quit() {}
char* SDL_GetError() {
    static char text[] = "no WebGL";
    return text;
}
Uint32 SDL_GetTicks() {
    return static_cast<Uint32>(static_cast<Uint64>(kovClock()));
}
int usleep(unsigned int) {
    return 0; // the page calls when it is time, and must not be held up
}

SDL_Surface* SDL_SetVideoMode(int width, int height, int, Uint32 flags) {
    if (!kovOpenCanvas(width, height)) return nullptr;
    kovShowWindow(width, height, (flags & SDL_FULLSCREEN) != 0);
    return &surface;
}
int SDL_GL_SetAttribute(SDL_GLattr, int) {
    return 0;
}
void SDL_GL_SwapBuffers() {
    if (frameIsSeen) quorva::web::showFrame();
}
int SDL_ShowCursor(int toggle) {
    return toggle;
}
void SDL_WM_SetCaption(const char* title, const char*) {
    kovShowTitle(title);
}
// The page has its own icon.
void SDL_WM_SetIcon(SDL_Surface*, Uint8*) {}
SDL_RWops* SDL_RWFromFile(const char*, const char*) {
    return nullptr;
}
SDL_Surface* SDL_LoadBMP_RW(SDL_RWops*, int) {
    return nullptr;
}
void SDL_FreeSurface(SDL_Surface*) {}

int SDL_PollEvent(SDL_Event* event) {
    if (events.empty()) return 0;
    *event = events.front();
    events.pop_front();
    return 1;
}
int SDL_NumJoysticks() {
    return 1;
}
int SDL_JoystickEventState(int state) {
    return state;
}
SDL_Joystick* SDL_JoystickOpen(int) {
    return &joystick;
}
const char* SDL_JoystickName(int) {
    return "pad";
}
int SDL_JoystickNumAxes(SDL_Joystick* opened) {
    return static_cast<int>(opened->axes.size());
}
int SDL_JoystickNumButtons(SDL_Joystick*) {
    return pad_buttons;
}
Sint16 SDL_JoystickGetAxis(SDL_Joystick* opened, int axis) {
    return opened->axes.at(static_cast<std::size_t>(axis));
}

// For the page.

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
    joystick.axes.at(static_cast<std::size_t>(axis)) = static_cast<Sint16>(position);
    SDL_Event event = {};
    event.type = SDL_JOYAXISMOTION;
    event.jaxis.axis = static_cast<Uint8>(axis);
    event.jaxis.value = static_cast<Sint16>(position);
    push(event);
}

} // extern "C"
