// Anything as bind1.conf: every action stays, and on a key and a button that exist or on none.

#include "Framework/input/KeyMapper.h"
#include "fuzz/Playground.h"

#include <SDL.h>

using namespace quorva::input;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    fuzz::write("bind1.conf", data, size);
    KeyMapperClass mapper;
    const char* const actions[] = {"Menu Select", "Menu Escape", "Up", "Fire Up", "Fire Right"};
    for (const char* action : actions)
        mapper.addMappableKey(action, SDLK_RETURN, no_button, 0);
    mapper.addMappableKey("Up", SDLK_UP, no_button, 1);
    mapper.readBindFiles();

    for (const char* action : actions) {
        const InputKey* const bound = mapper.getButton(action, 0);
        fuzz::require(bound != nullptr, "no action goes");
        fuzz::require(bound->key <= unknown_key, "the key exists");
        fuzz::require(bound->jsButton < 16 || bound->jsButton == no_button, "the button exists");
    }
    fuzz::require(mapper.getButton("Up", 1)->key == SDLK_UP, "other players keep their keys");
    return 0;
}
