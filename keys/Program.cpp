#include "keys/Program.h"

#include "Framework/Engine.h"
#include "Framework/MessageHandler.h"
#include "Framework/input/Joystick.h"

#include <cstdlib>

namespace quorva::keys {

namespace {

constexpr int clear_push = 16384; // of an axis: half its way, and no stick's idle drift

} // namespace

void Answering::press() {
    if (event.type == SDL_KEYDOWN)
        questions.pressKey(event.key.keysym.sym);
    else
        questions.pressButton(event.jbutton.button);
}

void Answering::moveAxes() {
    const input::JoystickClass& joystick = input::Joystick::Instance();
    if (std::abs(joystick.getXAxis()) > clear_push || std::abs(joystick.getYAxis()) > clear_push)
        questions.pushStick();
}

void Answering::finishEvent() {
    if (questions.step() == Questions::Step::left) publish(messages::EndGame());
}

Program::Program()
    : renderer(nullptr), questions(input::KeyMapper::Instance().keys,
                                   input::Joystick::Instance().joystickPresent(), save),
      answering(questions) {
    subscribe<messages::EndGame>(this);
    Engine::Instance().addComponent(&renderer);
    Engine::Instance().addComponent(&answering);
    page = new Page(questions);
    page->id = Engine::Instance().addEntity(page);
}

Program::~Program() {
    page->dead = true;
    Engine::Instance().cleanupDeadEntities();
    Engine::Instance().delComponent(&renderer);
    Engine::Instance().delComponent(&answering);
}

} // namespace quorva::keys
