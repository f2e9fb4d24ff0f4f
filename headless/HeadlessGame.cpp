#include "headless/HeadlessGame.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "game/BombIndicator.h"
#include "game/GameBase.h"
#include "game/GameIdentity.h"
#include "game/Marvo.h"
#include "game/PowerUpLines.h"
#include "game/SquareIndicator.h"
#include "game/Triangle.h"
#include "headless/StateHash.h"
#include "platform/standins/VirtualSDL.h"

namespace quorva::headless {

namespace {

/// Resets static state to that of a fresh process.
void forgetLastRun() {
    Triangle::seeded = SquareIndicator::seeded = BombIndicator::seeded = false;
    PowerUpLines::pupzindex = 0.0;
    math::MTRand_int32().seed(5489UL);
    PointManager::Instance().getV("Player Location").value = math::zero_point;
    Engine::Instance().nextId = 1;
}

} // namespace

HeadlessGame::HeadlessGame(std::uint32_t startTicks, unsigned short width, unsigned short height)
    : engine(Engine::Instance()) {
    standins::sdl().ticks = startTicks;
    standins::sdl().events.clear();
    introduceGame();
    forgetLastRun();
    config::ConfigClass& settings = config::Config::Instance();
    settings.setDefaults();
    if (width != 0) settings.setScreenWidth(width);
    if (height != 0) settings.setScreenHeight(height);
    settings.activateConfig();
    graphics::Camera::Instance().setupProjection();
    Marvo::Instance() = MarvoClass(); // the field's area is that of the first screen
    TimerClass& timer = Timer::Instance();
    timer.paused = false;
    timer.reset();
    base = std::make_unique<GameBase>();
}

HeadlessGame::~HeadlessGame() {
    for (const auto& [id, entity] : engine.entities)
        entity->dead = true;
    while (!engine.entities.empty()) {
        engine.cleanupDeadEntities(); // the dying make new ones
        for (const auto& [id, entity] : engine.entities)
            entity->dead = true;
    }
}

void HeadlessGame::frame() {
    engine.update();
}

void HeadlessGame::process() {
    TimerClass& timer = Timer::Instance();
    standins::sdl().ticks += timer.getProcessRate();
    if (timer.paused) return;
    engine.process();
    timer.calculateLastBlip();
}

void HeadlessGame::tick() {
    process();
    frame();
}

void HeadlessGame::ticks(unsigned int count) {
    for (unsigned int i = 0; i < count && !isOver(); ++i)
        tick();
}

void HeadlessGame::key(int symbol, bool down) {
    standins::pushKey(symbol, down);
}

void HeadlessGame::press(int symbol) {
    key(symbol, true);
    key(symbol, false);
}

void HeadlessGame::startLevel() {
    press(SDLK_RETURN);
    frame();
}

bool HeadlessGame::isOver() const {
    return base->dead;
}

std::uint32_t HeadlessGame::stateHash() const {
    return combined(stateParts());
}

} // namespace quorva::headless
