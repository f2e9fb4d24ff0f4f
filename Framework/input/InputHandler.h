#pragma once

#include "Framework/Component.h"
#include "Framework/Messages.h"

#include <SDL.h>
#include <boost/array.hpp>

namespace quorva::input {

/// Turns events into PlayerInput while a level runs. Of two opposite keys the newest wins, and
/// letting it go falls back to the other.
class InputHandler : public Component {
public:
    InputHandler();

    void update() override { checkInputs(); }
    void process() override { checkInputs(); }

    /// Takes all waiting events, up to a closed window.
    void checkInputs();
    void pause(); ///< player 0 asks for a pause

    // For a further driver. `value` is an axis value; a player above 3 is a programming fault.
    void xDown(unsigned short player, short value);
    void yDown(unsigned short player, short value);
    void xUp(unsigned short player);
    void yUp(unsigned short player);
    void xDown2(unsigned short player, short value); ///< the second pair fires
    void yDown2(unsigned short player, short value);
    void xUp2(unsigned short player);
    void yUp2(unsigned short player);

    boost::array<messages::PlayerInput, 4> playerInputs; ///< events drive the first alone
    boost::array<bool, 4> dirty;                         ///< the player's input has news
    SDL_Event event;
    bool leftHeld = false, rightHeld = false, downHeld = false, upHeld = false;

private:
    bool isKey(const char* action) const;
    bool isKeyOrButton(const char* action) const;
    void press();
    void release();
    void releaseDirection(bool& held, bool oppositeHeld, double& axis, double sign);
    void moveAxes();
    void set(double& axis, double value);
    void publishNews();
};

} // namespace quorva::input
