#include "Framework/input/Joystick.h"

#include "Framework/Config.h"

#include <algorithm>
#include <iostream>

namespace quorva::input {

JoystickClass::JoystickClass()
    : numJoysticks(static_cast<unsigned short>(std::max(0, SDL_NumJoysticks()))) {
    SDL_JoystickEventState(SDL_ENABLE);
    for (int i = 0; i < numJoysticks; ++i) {
        SDL_Joystick* const joystick = SDL_JoystickOpen(i);
        if (joystick == nullptr) continue;
        const char* const name = SDL_JoystickName(i);
        joysticks.push_back(std::make_unique<JoystickInfo>(
            JoystickInfo{name != nullptr ? name : "", SDL_JoystickNumAxes(joystick),
                         SDL_JoystickNumButtons(joystick), joystick}));
    }
    if (numJoysticks == 0) return;
    changePlayer1ActiveJoystick(0); // deliberate: the setting ActiveJoystick is not asked
    sensitivity = config::Config::Instance().getJoystickSensitivity();
}

void JoystickClass::changePlayer1ActiveJoystick(unsigned short index) {
    if (index < joysticks.size()) {
        activeJoystick = index;
    } else if (joysticks.empty()) {
        std::cerr << "No active joysticks found.\n";
    } else {
        activeJoystick = 0;
        std::cerr << "Joystick: " << index << " not found.  Activating joystick 0\n";
    }
}

short JoystickClass::getAxis(int axis) const {
    if (activeJoystick >= joysticks.size()) return 0;
    return SDL_JoystickGetAxis(joysticks[activeJoystick]->joystick, axis);
}

} // namespace quorva::input
