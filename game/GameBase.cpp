#include "game/GameBase.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/Timer.h"
#include "Framework/input/InputHandler.h"
#include "Framework/input/MenuInputHandler.h"
#include "Framework/menus/MainMenu.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/Actions.h"
#include "game/FModMP3Input.h"
#include "game/GameLevel.h"

#include <iostream>

using namespace quorva;

namespace {

const math::Vector gravity(0.0, -6.0, 0.0); // without effect: the physics never applies it

} // namespace

GameBase::GameBase() {
    subscribeToAll();

    renderer = new graphics::Renderer(nullptr);
    inputHandler = new input::InputHandler;
    menuInputHandler = new input::MenuInputHandler;
    audio = new FModMP3Input;
    physicsProcessor = new physics::PhysicsProcessor(gravity);
    EngineClass& engine = Engine::Instance();
    engine.addComponent(renderer);
    engine.addComponent(menuInputHandler);
    engine.addComponent(audio);
    mainMenu = engine.createEntity<menus::MainMenu>("Main Menu");
    setDefaultKeyMapping();
}

GameBase::~GameBase() {
    Component* const components[] = {renderer, inputHandler, menuInputHandler, physicsProcessor,
                                     audio};
    for (Component* component : components)
        Engine::Instance().delComponent(component);
    for (Component* component : components)
        delete component;
}

void GameBase::setDefaultKeyMapping() {
    mapActions();
}

void GameBase::receiveMessage(const messages::LoadLevel* m) {
    if (m->endCurrentLevel) publish(messages::EndLevel());
    if (level == nullptr)
        startGame();
    else
        std::cerr << "Can't load level. Another level is already open\n";
}

void GameBase::startGame() {
    if (!loadLevel()) return;
    mainMenu->hide();
    EngineClass& engine = Engine::Instance();
    engine.delComponent(menuInputHandler);
    engine.addComponent(inputHandler);
    engine.addComponent(physicsProcessor);
    renderer->physics = physicsProcessor;
    Timer::Instance().reset();
}

bool GameBase::loadLevel() {
    try {
        level = Engine::Instance().createEntity<GameLevel>("Level");
        return true;
    } catch (...) {
        level = nullptr;
        std::cerr << "Invalid level\n";
        return false;
    }
}

void GameBase::unLoadLevel() {
    publish(StopSong());
    audio->stopSong(); // deliberate: a second time, and without a level too
    if (level == nullptr) return;
    level->dead = true;
    level = nullptr;
    EngineClass& engine = Engine::Instance();
    engine.delComponent(inputHandler);
    engine.addComponent(menuInputHandler);
    engine.delComponent(physicsProcessor);
    renderer->physics = nullptr;
    // Also if it isn't paused: the sum that this spoils is reset by the next game.
    Timer::Instance().unPauseGame();
}

void GameBase::receiveMessage(const messages::EndLevel*) {
    unLoadLevel();
    mainMenu->show(menus::menu_load_normal);
    if (!gameOverPending) return;
    mainMenu->showGOScreen();
    gameOverPending = false;
}

void GameBase::receiveMessage(const PlayerDead* m) {
    if (m->gameOver) gameOverPending = true;
}

void GameBase::receiveMessage(const messages::EndGame*) {
    dead = true;
    mainMenu->dead = true;
}

void GameBase::receiveMessage(const messages::MenuLoad* m) {
    if (level == nullptr || !m->active) return;
    menuUp = true;
    Timer::Instance().pauseGame();
    Engine::Instance().delComponent(inputHandler);
    Engine::Instance().addComponent(menuInputHandler);
    mainMenu->show(menus::menu_load_pause);
}

void GameBase::receiveMessage(const messages::MenuUnLoad* m) {
    if (level == nullptr || !m->active) return;
    Engine::Instance().delComponent(menuInputHandler);
    Engine::Instance().addComponent(inputHandler);
    mainMenu->hide();
    Timer::Instance().pauseGame(); // deliberate: the level stays frozen until the pause key
}
