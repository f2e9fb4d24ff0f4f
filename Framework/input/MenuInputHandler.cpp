#include "Framework/input/MenuInputHandler.h"

#include "Framework/Config.h"
#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "Framework/input/Joystick.h"
#include "Framework/input/KeyMapper.h"

namespace quorva::input {

namespace {

constexpr short repeat_delay = 5; // ticks between two steps up or down

using Flag = bool messages::MenuMove::*;

void publishMove(Flag flag) {
    messages::MenuMove move;
    if (flag != nullptr) move.*flag = true;
    publish(move);
}

} // namespace

void MenuInputHandler::process() {
    checkInputs();
    if (moveDelay > 0) --moveDelay;
}

bool MenuInputHandler::matches(const char* action) const {
    const InputKey* const mapped = KeyMapper::Instance().getButton(action, 0);
    if (mapped == nullptr) return false;
    if (event.type == SDL_JOYBUTTONDOWN) return event.jbutton.button == mapped->jsButton;
    // Deliberate: the state of a key, 1 while it is down, is compared like a button's number, so
    // that any key press matches an action that is bound to button 1.
    return event.key.keysym.sym == mapped->key || event.key.state == mapped->jsButton;
}

void MenuInputHandler::press() {
    const struct {
        const char* action;
        void (MenuInputHandler::*send)();
    } moves[] = {
        {"Right", &MenuInputHandler::moveRight},    {"Left", &MenuInputHandler::moveLeft},
        {"Up", &MenuInputHandler::moveUp},          {"Down", &MenuInputHandler::moveDown},
        {"Menu Select", &MenuInputHandler::select}, {"Menu Escape", &MenuInputHandler::escape},
    };
    for (const auto& move : moves)
        if (matches(move.action)) (this->*move.send)();
    if (event.type == SDL_KEYDOWN) sendDigit();
}

void MenuInputHandler::sendDigit() {
    const int key = event.key.keysym.sym;
    if (key >= SDLK_0 && key <= SDLK_9) sendNumber(static_cast<char>('0' + key - SDLK_0));
    if (key >= SDLK_KP0 && key <= SDLK_KP9) sendNumber(static_cast<char>('0' + key - SDLK_KP0));
}

void MenuInputHandler::release() {
    if (isKey("Right")) unmoveRight();
    if (isKey("Left")) unmoveLeft();
}

void MenuInputHandler::moveAxes() {
    // Unlike the input of the game, which takes the axes whatever the setting says.
    if (!config::Config::Instance().getJoyStickSupport()) return;
    const JoystickClass& joystick = Joystick::Instance();
    const int threshold = joystick.getSensitivity();
    stepVertically(joystick.getYAxis(), threshold);
    lastYAxis = joystick.getYAxis();
    stepHorizontally(joystick.getXAxis(), threshold);
    lastXAxis = joystick.getXAxis();
}

void MenuInputHandler::stepVertically(int y, int threshold) {
    if (moveDelay != 0 || (y >= -threshold && y <= threshold)) return;
    moveDelay = repeat_delay;
    if (y < -threshold)
        moveUp();
    else
        moveDown();
}

void MenuInputHandler::stepHorizontally(int x, int threshold) {
    if (lastXAxis != 0 && x == lastXAxis) return;
    if (x < -threshold)
        moveLeft();
    else if (x > threshold)
        moveRight();
}

void MenuInputHandler::select() {
    publishMove(&messages::MenuMove::select);
}
void MenuInputHandler::escape() {
    publishMove(&messages::MenuMove::escape);
}
void MenuInputHandler::moveUp() {
    publishMove(&messages::MenuMove::up);
}
void MenuInputHandler::moveDown() {
    publishMove(&messages::MenuMove::down);
}
void MenuInputHandler::moveLeft() {
    publishMove(&messages::MenuMove::left);
}
void MenuInputHandler::moveRight() {
    publishMove(&messages::MenuMove::right);
}
void MenuInputHandler::unmoveRight() {
    publishMove(nullptr);
}
void MenuInputHandler::unmoveLeft() {
    publishMove(nullptr);
}

void MenuInputHandler::sendNumber(char c) {
    messages::LiteralCharacter message;
    message.character = c;
    publish(message);
}

} // namespace quorva::input
