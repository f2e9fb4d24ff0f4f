#include "platform/headless/HeadlessGame.h"

#include "Framework/Config.h"
#include "Framework/Constants.h"
#include "Framework/Engine.h"
#include "Framework/GameInfo.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "Framework/physics/PhysicsObject.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/BombIndicator.h"
#include "game/GameBase.h"
#include "game/Marvo.h"
#include "game/PowerUpLines.h"
#include "game/SquareIndicator.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"
#include "platform/headless/VirtualSDL.h"

#include <cstring>
#include <sstream>
#include <typeinfo>

namespace quorva::headless {

namespace {

/// FNV-1a, 32 bits (Fowler, Noll, Vo 1991).
class Hash {
public:
    template <class T>
    void add(const T& value) {
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, &value, sizeof(T));
        for (const unsigned char byte : bytes)
            state = (state ^ byte) * 16777619U;
    }
    void add(const math::Point& p) {
        add(p.x);
        add(p.y);
    }
    std::uint32_t state = 2166136261U;
};

/// What a process has at its start, and a second run in it has not any more.
void forgetLastRun() {
    Triangle::seeded = SquareIndicator::seeded = BombIndicator::seeded = false;
    PowerUpLines::pupzindex = 0.0;
    math::MTRand_int32().seed(5489UL);
    PointManager::Instance().getV("Player Location").value = math::zero_point;
    Engine::Instance().nextId = 1;
}

void introduceGame() {
    GameInfoClass& info = GameInfo::Instance();
    info.name = info.title = "KOV";
    info.version = "1.0";
    info.homeDirectory = ".kov";
    info.configFile = STARTING_PATH + "game.conf";
}

} // namespace

HeadlessGame::HeadlessGame(std::uint32_t startTicks, unsigned short width, unsigned short height) {
    sdl().ticks = startTicks;
    sdl().events.clear();
    introduceGame();
    forgetLastRun();
    config::ConfigClass& settings = config::Config::Instance();
    settings.setDefaults();
    if (width != 0) settings.setScreenWidth(width);
    if (height != 0) settings.setScreenHeight(height);
    settings.activateConfig();
    TimerClass& timer = Timer::Instance();
    timer.paused = false;
    timer.reset();
    base = std::make_unique<GameBase>();
}

HeadlessGame::~HeadlessGame() {
    EngineClass& engine = Engine::Instance();
    for (const auto& [id, entity] : engine.entities)
        entity->dead = true;
    while (!engine.entities.empty()) {
        engine.cleanupDeadEntities(); // the dying make new ones
        for (const auto& [id, entity] : engine.entities)
            entity->dead = true;
    }
}

void HeadlessGame::frame() {
    Engine::Instance().update();
}

void HeadlessGame::process() {
    TimerClass& timer = Timer::Instance();
    sdl().ticks += timer.getProcessRate();
    if (timer.paused) return;
    Engine::Instance().process();
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
    pushKey(symbol, down);
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
    Hash hash;
    for (const auto& [id, entity] : Engine::Instance().entities) {
        hash.add(id);
        hash.add(entity->dead);
        if (entity->physics == nullptr) continue;
        hash.add(entity->physics->position);
        for (const math::Point& vertex : entity->physics->vertices)
            hash.add(vertex);
    }
    for (const TrapLine* line : base->physicsProcessor->lines) {
        hash.add(line->start);
        hash.add(line->end);
        hash.add(line->lifeTicks);
    }
    const MarvoClass& marvo = Marvo::Instance();
    hash.add(marvo.score);
    hash.add(marvo.lives);
    hash.add(math::MTRand_int32::p);
    hash.add(math::MTRand_int32::state);
    return hash.state;
}

std::string HeadlessGame::describe() const {
    std::ostringstream out;
    out.precision(17);
    const MarvoClass& marvo = Marvo::Instance();
    out << "score " << marvo.score << " lives " << marvo.lives << " draw " << math::MTRand_int32::p
        << '\n';
    for (const auto& [id, entity] : Engine::Instance().entities) {
        out << id << ' ' << typeid(*entity).name() << (entity->dead ? " dead" : "");
        if (entity->physics != nullptr)
            out << ' ' << entity->physics->position.x << ' ' << entity->physics->position.y;
        out << '\n';
    }
    return out.str();
}

} // namespace quorva::headless
