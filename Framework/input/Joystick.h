#pragma once

#include "Framework/Singleton.h"

#include <SDL.h>

#include <memory>
#include <string>
#include <vector>

namespace quorva::input {

struct JoystickInfo {
    std::string name;
    int numAxes;
    int numButtons;
    SDL_Joystick* joystick; ///< open; SDL frees it when it quits
};

/// The opened joysticks, of which one is active. Everything works without any.
class JoystickClass {
public:
    JoystickClass(); ///< opens all; one that doesn't open is left out

    bool joystickPresent() const { return !joysticks.empty(); }
    unsigned short getSensitivity() const {
        return sensitivity;
    } ///< smallest deflection that counts
    unsigned short getPlayer1Sensitivity() const { return sensitivity; }

    /// An index that is not there is reported on standard error, and gives joystick 0.
    void changePlayer1ActiveJoystick(unsigned short index);

    // Of the active joystick; 0 without one.
    short getXAxis() const { return getAxis(0); }
    short getYAxis() const { return getAxis(1); }
    short get2ndXAxis() const { return getAxis(2); }
    short get2ndYAxis() const { return getAxis(3); }

    unsigned short numJoysticks;                          ///< as SDL counts them
    std::vector<std::unique_ptr<JoystickInfo>> joysticks; ///< those that opened
    unsigned short activeJoystick = 0;                    ///< index into `joysticks`
    unsigned short sensitivity = 0;

private:
    short getAxis(int axis) const;
};

using Joystick = DefaultSingleton<JoystickClass>;

} // namespace quorva::input
