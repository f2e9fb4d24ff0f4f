#include "Framework/input/EventHandler.h"

#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "Framework/input/KeyMapper.h"

namespace quorva::input {

void EventHandler::checkInputs() {
    while (SDL_PollEvent(&event) != 0) {
        switch (event.type) {
        case SDL_KEYDOWN:
        case SDL_JOYBUTTONDOWN:
            press();
            break;
        case SDL_KEYUP:
            release();
            break;
        case SDL_JOYAXISMOTION:
            moveAxes();
            break;
        case SDL_QUIT:
            publish(messages::EndGame());
            return;
        default:
            break;
        }
        finishEvent();
    }
}

bool EventHandler::isKey(const char* action) const {
    if (event.type != SDL_KEYDOWN && event.type != SDL_KEYUP) return false;
    const InputKey* const mapped = KeyMapper::Instance().getButton(action, 0);
    return mapped != nullptr && event.key.keysym.sym == mapped->key;
}

} // namespace quorva::input
