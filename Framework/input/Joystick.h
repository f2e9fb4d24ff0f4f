#pragma once

#include "Framework/Singleton.h"

#include <SDL.h>

#include <memory>
#include <string>
#include <vector>

namespace quorva::input {

struct JoystickInfo {
    std::string name; ///< nothing reads it, nor the two numbers
    int numAxes;
    int numButtons;
    SDL_Joystick* joystick; ///< not owned: SDL closes it when it quits
};

/// The opened joysticks, of which one is active: the first, whatever the settings say. Everything
/// works without any.
class JoystickClass {
public:
    JoystickClass(); ///< opens all; a joystick that doesn't open is left out in silence

    bool joystickPresent() const { return !joysticks.empty(); }
    /// A deflection beyond it counts, in axis units. Read from the settings once, at the start.
    unsigned short getSensitivity() const { return sensitivity; }
    unsigned short getPlayer1Sensitivity() const { return sensitivity; }

    /// An index without a joystick is reported on standard error, and gives joystick 0.
    void changePlayer1ActiveJoystick(unsigned short index);

    // Of the active joystick; 0 without one.
    short getXAxis() const { return getAxis(0); }
    short getYAxis() const { return getAxis(1); }
    short get2ndXAxis() const { return getAxis(2); }
    short get2ndYAxis() const { return getAxis(3); }

    unsigned short numJoysticks;                          ///< as SDL counts them
    std::vector<std::unique_ptr<JoystickInfo>> joysticks; ///< the open ones, in SDL's order
    unsigned short activeJoystick = 0;                    ///< index into `joysticks`
    unsigned short sensitivity = 0;

private:
    short getAxis(int axis) const;
};

using Joystick = DefaultSingleton<JoystickClass>;

} // namespace quorva::input
