#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

namespace quorva::graphics {
class GWord;
}

/// The result of a finished game: a still page, written at construction, which also saves a new
/// high score. The main menu ends it.
class GameOverScreen : public quorva::Entity,
                       public quorva::MessageInterface<quorva::messages::MenuMove> {
public:
    GameOverScreen();

    void process() override {}
    void update() override {}
    void receiveMessage(const quorva::messages::MenuMove* m) override;

    bool done = false; ///< set by the key that ends the page; nothing reads it
    // The graphics own the words.
    quorva::graphics::GWord *titleWord, *messageWord, *scoreWord, *promptWord, *highScoreWord;
};
