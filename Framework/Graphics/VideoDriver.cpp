#include "Framework/Graphics/VideoDriver.h"

#include <SDL.h>

#include <cstdlib>

namespace quorva::graphics {

namespace {

bool isSet(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

/// The compatibility library, on the SDL of today. It gives itself patch levels from 50 on.
bool knowsWayland() {
    return SDL_Linked_Version()->patch >= 50;
}

} // namespace

void keepToDriversWithGL() {
    if (isSet("SDL_VIDEODRIVER") || (isSet("WAYLAND_DISPLAY") && knowsWayland())) return;
    setenv("SDL_VIDEODRIVER", "x11", 1);
}

} // namespace quorva::graphics
