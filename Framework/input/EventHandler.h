#pragma once

#include "Framework/Component.h"

#include <SDL.h>

namespace quorva::input {

/// A component that takes SDL's events. There is one queue, so at most one of them is active.
class EventHandler : public Component {
public:
    EventHandler() : event() {}

    void update() override { checkInputs(); }
    void process() override { checkInputs(); }

    /// Takes all waiting events. A closed window publishes EndGame and ends this at once: the
    /// events behind it wait for the next call.
    void checkInputs();

    SDL_Event event; ///< the one being handled

protected:
    /// Whether the event is the press or the release of player 0's key for `action`.
    bool isKey(const char* action) const;

private:
    virtual void press() = 0;     ///< a key, or a button of a joystick, went down
    virtual void release() = 0;   ///< a key went up
    virtual void moveAxes() = 0;  ///< an axis of a joystick moved
    virtual void finishEvent() {} ///< after every event but a closed window
};

} // namespace quorva::input
