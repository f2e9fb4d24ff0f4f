#pragma once

#include "Framework/Game.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/MessageInterface.h"
#include "Framework/input/EventHandler.h"
#include "keys/Page.h"

namespace quorva::keys {

/// Leads keys, buttons and the stick to the questions, and ends the program when they are over.
class Answering : public input::EventHandler {
public:
    explicit Answering(Questions& questions_) : questions(questions_) {}

private:
    void press() override;
    void release() override {}
    void moveAxes() override;
    void finishEvent() override;

    Questions& questions; ///< not owned
};

/// The program that asks the player for keys: a window, the questions and their page. The key
/// mapper has to be filled before.
class Program : public Game, public MessageInterface<messages::EndGame> {
public:
    Program(); ///< opens the window
    ~Program() override;

    void process() override {}
    void update() override {}
    void receiveMessage(const messages::EndGame*) override { dead = true; }

    graphics::Renderer renderer;
    Questions questions;
    Answering answering;
    Page* page; ///< the engine owns it
};

} // namespace quorva::keys
