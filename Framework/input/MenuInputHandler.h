#pragma once

#include "Framework/input/EventHandler.h"

namespace quorva::input {

/// Turns events into MenuMove while a menu is up.
class MenuInputHandler : public EventHandler {
public:
    void process() override; ///< also counts the joystick's delay down

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

    void sendNumber(char c); ///< publishes LiteralCharacter, which nothing receives

    int lastYAxis = 0;   ///< at the last event of an axis; nothing reads it
    int lastXAxis = 0;   ///< a step left or right takes a new value, or 0 here
    short moveDelay = 0; ///< ticks until the joystick may step up or down again

private:
    void press() override;
    void release() override;
    void moveAxes() override;
    bool matches(const char* action) const;
    void sendDigit();
    void stepVertically(int y, int threshold);
    void stepHorizontally(int x, int threshold);
};

} // namespace quorva::input
