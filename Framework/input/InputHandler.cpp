#include "Framework/input/InputHandler.h"

#include "Framework/MessageHandler.h"
#include "Framework/input/Joystick.h"
#include "Framework/input/KeyMapper.h"

#include <cstdlib>
#include <iostream>

namespace quorva::input {

namespace {

constexpr float full_deflection = 32767.0F; // of an axis

/// What the y axis moves by, however far it is deflected: a single unit's share. Deliberate, and
/// harmless, as only the sign is read.
constexpr double y_axis_move = 3.0518509447574615e-05;

double share(short value) {
    return value / full_deflection;
}

} // namespace

InputHandler::InputHandler() {
    for (std::size_t i = 0; i < playerInputs.size(); ++i)
        playerInputs[i].player = static_cast<unsigned short>(i);
    dirty.fill(false);
    Joystick::Instance(); // opens the joysticks
}

void InputHandler::finishEvent() {
    if (!dirty[0]) return;
    dirty[0] = false;
    messages::PlayerInput& input = playerInputs[0];
    publish(input);
    input.fire = math::zero_point;
    input.pause = false;
}

bool InputHandler::isKeyOrButton(const char* action) const {
    if (event.type != SDL_JOYBUTTONDOWN) return isKey(action);
    const InputKey* const mapped = KeyMapper::Instance().getButton(action, 0);
    return mapped != nullptr && event.jbutton.button == mapped->jsButton;
}

void InputHandler::set(double& axis, double value) {
    axis = value;
    dirty[0] = true;
}

void InputHandler::press() {
    messages::PlayerInput& input = playerInputs[0];
    const struct {
        const char* action;
        double& axis;
        double value;
        bool& held;
    } directions[] = {{"Right", input.move.x, 1.0, rightHeld},
                      {"Left", input.move.x, -1.0, leftHeld},
                      {"Up", input.move.y, 1.0, upHeld},
                      {"Down", input.move.y, -1.0, downHeld}};
    const struct {
        const char* action;
        double& axis;
        double value;
    } guns[] = {{"Fire Right", input.fire.x, 1.0},
                {"Fire Left", input.fire.x, -1.0},
                {"Fire Up", input.fire.y, 1.0},
                {"Fire Down", input.fire.y, -1.0}};

    if (isKeyOrButton("Menu Escape")) publish(messages::EndLevel());
    for (const auto& direction : directions) {
        if (!isKey(direction.action)) continue;
        set(direction.axis, direction.value);
        direction.held = true;
    }
    for (const auto& gun : guns)
        if (isKeyOrButton(gun.action)) set(gun.axis, gun.value);
    if (isKeyOrButton("Game Pause")) pause();
}

void InputHandler::release() {
    math::Vector& move = playerInputs[0].move;
    if (isKey("Right")) releaseDirection(rightHeld, leftHeld, move.x, 1.0);
    if (isKey("Left")) releaseDirection(leftHeld, rightHeld, move.x, -1.0);
    if (isKey("Up")) releaseDirection(upHeld, downHeld, move.y, 1.0);
    if (isKey("Down")) releaseDirection(downHeld, upHeld, move.y, -1.0);
}

void InputHandler::releaseDirection(bool& held, bool oppositeHeld, double& axis, double sign) {
    held = false;
    if (axis * sign > 0.0) set(axis, 0.0);
    if (oppositeHeld) set(axis, -sign);
}

void InputHandler::moveAxes() {
    // The event only says that something moved: where the stick stands now, the joystick says.
    const JoystickClass& joystick = Joystick::Instance();
    const int threshold = joystick.getSensitivity();
    math::Vector& move = playerInputs[0].move;
    const short x = joystick.getXAxis();
    if (x < -threshold || x > threshold) {
        set(move.x, share(x));
        (x > 0 ? rightHeld : leftHeld) = true;
    } else {
        set(move.x, 0.0);
    }
    const short y = joystick.getYAxis();
    if (y < -threshold) {
        set(move.y, y_axis_move);
        upHeld = true;
    } else if (y > threshold) {
        set(move.y, -y_axis_move);
        downHeld = true;
    } else {
        set(move.y, 0.0);
    }
}

messages::PlayerInput& InputHandler::renew(unsigned short player) {
    if (player >= playerInputs.size()) {
        std::cerr << "No such player: " << player << '\n';
        std::abort(); // a programming fault, also where assertions are left out
    }
    dirty[player] = true;
    return playerInputs[player];
}

void InputHandler::pause() {
    renew(0).pause = true;
}

void InputHandler::xDown(unsigned short player, short value) {
    renew(player).move.x = share(value);
    (value < 1 ? leftHeld : rightHeld) = true;
}

void InputHandler::yDown(unsigned short player, short value) {
    renew(player).move.y = share(value);
    (value < 1 ? downHeld : upHeld) = true;
}

void InputHandler::xUp(unsigned short player) {
    renew(player).move.x = 0.0;
}

void InputHandler::yUp(unsigned short player) {
    renew(player).move.y = 0.0;
}

void InputHandler::xDown2(unsigned short player, short value) {
    renew(player).fire.x = share(value);
}

void InputHandler::yDown2(unsigned short player, short value) {
    renew(player).fire.y = share(value);
}

void InputHandler::xUp2(unsigned short player) {
    xDown2(player, 0);
}

void InputHandler::yUp2(unsigned short player) {
    yDown2(player, 0);
}

} // namespace quorva::input
