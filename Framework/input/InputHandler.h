#pragma once

#include "Framework/Messages.h"
#include "Framework/input/EventHandler.h"

#include <boost/array.hpp>

namespace quorva::input {

/// Turns events into PlayerInput while a level runs: one message for each event that changes it.
/// Of two opposite keys the newest wins, and releasing it falls back to the other.
class InputHandler : public EventHandler {
public:
    InputHandler();

    void pause(); ///< player 0 asks for a pause

    // Nothing calls these yet: they are there for another input driver, which also publishes.
    // `value` is that of an axis, -32768 to 32767; a player above 3 ends the process.
    void xDown(unsigned short player, short value); ///< deliberate: 0 counts as left held
    void yDown(unsigned short player, short value); ///< deliberate: 0 counts as down held
    void xUp(unsigned short player);
    void yUp(unsigned short player);
    void xDown2(unsigned short player, short value); ///< the second pair fires
    void yDown2(unsigned short player, short value);
    void xUp2(unsigned short player);
    void yUp2(unsigned short player);

    boost::array<messages::PlayerInput, 4> playerInputs; ///< events drive only the first
    boost::array<bool, 4> dirty; ///< awaits publication; nothing reads those behind the first
    /// Set by keys, axes and the setters above. Only releasing a key clears them: deliberately, an
    /// axis that returns to the middle does not.
    bool leftHeld = false, rightHeld = false, downHeld = false, upHeld = false;

private:
    void press() override;
    void release() override;
    void moveAxes() override;
    void finishEvent() override; ///< publishes player 0's input if it has changed
    bool isKeyOrButton(const char* action) const;
    void releaseDirection(bool& held, bool oppositeHeld, double& axis, double sign);
    void set(double& axis, double value);
    messages::PlayerInput& renew(unsigned short player);
};

} // namespace quorva::input
