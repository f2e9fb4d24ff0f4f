#include "game/Actions.h"

#include "Framework/input/KeyMapper.h"

#include <SDL_keysym.h>

using namespace quorva;

namespace {

/// Every action with its default key and joystick button, in the order of registration.
const struct {
    const char* action;
    int key;
    int button;
} default_actions[] = {
    {"Menu Select", SDLK_RETURN, 2},          {"Menu Escape", SDLK_ESCAPE, 8},
    {"Game Pause", SDLK_p, input::no_button}, {"Up", SDLK_UP, input::no_button},
    {"Down", SDLK_DOWN, input::no_button},    {"Left", SDLK_LEFT, input::no_button},
    {"Right", SDLK_RIGHT, input::no_button},  {"Fire Up", SDLK_w, input::no_button},
    {"Fire Down", SDLK_s, input::no_button},  {"Fire Left", SDLK_a, input::no_button},
    {"Fire Right", SDLK_d, input::no_button},
};

} // namespace

void mapActions() {
    input::KeyMapperClass& keys = input::KeyMapper::Instance();
    for (const auto& row : default_actions)
        keys.addMappableKey(row.action, static_cast<input::QuorvaKey>(row.key),
                            static_cast<input::QuorvaJKey>(row.button), 0);
    keys.readBindFiles();
}
