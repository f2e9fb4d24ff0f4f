#include "platform/web/sdl/Joystick.h"

#include <array>

/// There is one, which stands for every pad and for the stick on a touch screen, as pads come and
/// go without notice.
struct _SDL_Joystick {
    std::array<Sint16, 4> axes;
};

namespace {

constexpr int pad_buttons = 16;

_SDL_Joystick joystick;

} // namespace

namespace quorva::web {

void setAxis(int axis, Sint16 position) {
    joystick.axes.at(static_cast<std::size_t>(axis)) = position;
}

} // namespace quorva::web

extern "C" {

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

} // extern "C"
