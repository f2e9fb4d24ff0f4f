#pragma once

#include "Framework/Component.h"
#include "Framework/Messages.h"

#include <SDL.h>

namespace quorva::input {

/// Turns events into MenuMove while a menu is up.
class MenuInputHandler : public Component {
public:
    MenuInputHandler() : event() {}

    void update() override { checkInputs(); }
    void process() override; ///< also lets the joystick's delay run

    /// Takes all waiting events, up to a closed window.
    void checkInputs();

    // Each publishes a MenuMove with the flag of its name.
    void select();
    void escape();
    void moveUp();
    void moveDown();
    void moveLeft();
    void moveRight();
    // Each publishes a MenuMove without a flag, which ends a held slide.
    void unmoveRight();
    void unmoveLeft();

    void sendNumber(char c); ///< publishes LiteralCharacter

    SDL_Event event;
    int lastYAxis = 0;
    int lastXAxis = 0;
    short moveDelay = 0; ///< ticks until the joystick may step up or down again

private:
    bool matches(const char* action) const;
    bool isKey(const char* action) const;
    void press();
    void sendDigit();
    void release();
    void moveAxes();
    void stepVertically(int y, int threshold);
    void stepHorizontally(int x, int threshold);
};

} // namespace quorva::input
