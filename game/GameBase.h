#pragma once

#include "Framework/Game.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"

class FModMP3Input;
class GameLevel;

namespace quorva {
namespace graphics {
class Renderer;
}
namespace input {
class InputHandler;
class MenuInputHandler;
} // namespace input
namespace menus {
class MainMenu;
}
namespace physics {
class PhysicsProcessor;
}
} // namespace quorva

/// The one game object that `main` makes. It owns the components and, by choosing the active ones,
/// switches between menu and level. It holds no rules of play.
class GameBase
    : public quorva::Game,
      public quorva::MessageReceiver<quorva::messages::EndLevel, quorva::messages::LoadLevel,
                                     quorva::messages::MenuLoad, quorva::messages::MenuUnLoad,
                                     quorva::messages::EndGame, PlayerDead> {
public:
    GameBase(); ///< opens the window, the main menu and the key table
    ~GameBase() override;

    void process() override {}
    void update() override {}

    void receiveMessage(const quorva::messages::EndLevel*) override;
    void receiveMessage(const quorva::messages::LoadLevel* m) override;
    void receiveMessage(const quorva::messages::MenuLoad* m) override;
    void receiveMessage(const quorva::messages::MenuUnLoad* m) override;
    void receiveMessage(const quorva::messages::EndGame*) override;
    void receiveMessage(const PlayerDead* m) override;

    void setDefaultKeyMapping(); ///< the default keys of all actions, then the bind file

    GameLevel* level = nullptr; ///< null in the menu; the engine owns it
    bool menuUp = true;         ///< MenuLoad sets it again; nothing clears or reads it
    quorva::menus::MainMenu* mainMenu = nullptr; ///< for the whole run; the engine owns it
    // The components, owned. Never freed with a level, which ends within a sweep over them.
    quorva::graphics::Renderer* renderer;
    quorva::input::InputHandler* inputHandler;
    quorva::input::MenuInputHandler* menuInputHandler;
    quorva::physics::PhysicsProcessor* physicsProcessor;
    FModMP3Input* audio;
    bool gameOverPending = false; ///< the last life is lost: the next EndLevel shows the verdict

private:
    void startGame();
    bool loadLevel(); ///< @return false, with a line on standard error, if it threw
    void
    unLoadLevel(); ///< stops the music; a running level is flagged dead, the menu gets the keys
};
