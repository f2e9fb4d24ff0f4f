#include "headless/StateHash.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"
#include "Framework/physics/PhysicsObject.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/ArrowIndicator.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/BombIndicator.h"
#include "game/Bullet.h"
#include "game/GameLevel.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/PowerUpLines.h"
#include "game/SquareIndicator.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"
#include "game/TriangleExplodeLine.h"

#include <boost/core/demangle.hpp>

#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>

namespace quorva::headless {

namespace {

/// Mixes values, in their order, into 32 bits.
class Mixer {
public:
    template <class... Values>
    void add(const Values&... values) {
        (addOne(values), ...);
    }
    std::uint32_t result() const { return static_cast<std::uint32_t>(state ^ (state >> 32)); }

private:
    void mix(std::uint64_t word) {
        state = (state ^ word) * 0x9e3779b97f4a7c15ULL; // 2^64 over the golden ratio
        state ^= state >> 29;
    }
    template <class T>
    void addOne(const T& value) {
        if constexpr (std::is_floating_point_v<T>)
            addNumber(value);
        else
            mix(static_cast<std::uint64_t>(value));
    }
    /// Values that no comparison can tell apart hash alike: zeros of both signs, any not-a-number.
    void addNumber(double value) {
        if (std::isnan(value)) value = std::numeric_limits<double>::infinity();
        value += 0.0;
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        mix(bits);
    }
    void addOne(const math::Point& p) { add(p.x, p.y, p.z); }
    void addOne(const math::Vector& v) { add(v.x, v.y, v.z); }
    void addOne(const math::Quaternion& q) { add(q.w, q.x, q.y, q.z); }
    void addOne(const Entity* e) { mix(e == nullptr ? 0 : e->id); }

    std::uint64_t state = 0xcbf29ce484222325ULL;
};

void addState(Mixer& m, const PlayerCharacter& p) {
    m.add(p.moveUp, p.moveDown, p.moveLeft, p.moveRight, p.invulnerable, p.invulnerableTicks,
          p.blinkTicks, p.lineLength, p.cooldown, p.pickupLock, p.deathTicks, p.linePups,
          p.cooldownPups);
    for (const std::uint16_t ticks : p.fireTimers)
        m.add(ticks);
}

void addState(Mixer& m, const GameLevel& l) {
    m.add(l.spawnBonus, l.tickCount, l.levelNumber, l.trianglesSincePowerUp, l.ticksSinceBomb,
          l.deathSpawnPenalty, l.deathSizePenalty, l.ticksSinceSpawn);
}

void addState(Mixer& m, const Bullet& b) {
    m.add(b.fakeKilled, b.hitTriangle, b.spinAngle, b.rotation, b.dying, b.colour.alpha());
}

void addState(Mixer& m, const TrapLine& l) {
    m.add(l.start, l.end, static_cast<const Entity*>(l.bullet), l.lifeTicks, l.horizontal,
          l.fakeDone, l.solid, l.blinkTicks, l.fading, l.finished);
    if (l.fading) m.add(l.fadeScale, l.fadeStep);
}

void addState(Mixer& m, const Triangle& t) {
    m.add(t.speed, t.size, t.angle, t.explodes, t.modelB, t.modelC, t.state, t.step, t.baseOffset,
          t.noseStep, t.noseOffset, t.pauseTicks, t.noseTarget, t.contractTicks, t.noseTicks,
          t.stuckTicks);
}

void addState(Mixer& m, const TriangleExplodeLine& l) {
    m.add(l.start, l.end, l.drift, l.spinAngle, l.rotation);
}

void addState(Mixer& m, const PowerUpLines& burst) {
    m.add(burst.colour.alpha(), burst.cleaningUp, burst.spinAngle, burst.spinSpeed, burst.rotation);
    for (const ParticleLine& ray : burst.rays)
        m.add(ray.angle, ray.length, ray.growth);
}

void addState(Mixer& m, const Bomb& b) {
    m.add(b.ticks, b.pulses);
}

void addState(Mixer& m, const ConvergingLines& lines) {
    m.add(lines.colour.alpha());
    for (const math::Point& position : lines.positions)
        m.add(position);
}

void addState(Mixer& m, const ArrowIndicator& a) {
    m.add(a.firing, a.restoring, a.restoreTicks);
    for (unsigned int i = 0; i < ArrowIndicator::chevron_count; ++i)
        m.add(a.outward[i], a.inward[i]);
}

void addState(Mixer& m, const menus::MainMenu& menu) {
    m.add(menu.shown, menu.selection);
}

void addState(Mixer& m, const menus::ConfigMenu& menu) {
    m.add(menu.selection, menu.width, menu.height, menu.fullScreen, menu.fxVolume, menu.musicVolume,
          menu.collisionAccuracy, menu.saveCPU);
}

using AddState = void (*)(Mixer&, const Entity&);

/// As which class an entity of class T gives its state.
template <class T, class As = T>
std::pair<const std::type_index, AddState> row() {
    return {typeid(T), [](Mixer& m, const Entity& e) { addState(m, static_cast<const As&>(e)); }};
}

/// The state beside the body; classes that are missing here have none.
void addOwnState(Mixer& m, const Entity& entity) {
    static const std::unordered_map<std::type_index, AddState> rows = {
        row<PlayerCharacter>(),
        row<GameLevel>(),
        row<Bullet>(),
        row<TrapLine>(),
        row<Triangle>(),
        row<TriangleExplodeLine>(),
        row<PowerUpLines>(),
        row<BombClear, Bomb>(),
        row<BombImmune, Bomb>(),
        row<SquareIndicator, ConvergingLines>(),
        row<BombIndicator, ConvergingLines>(),
        row<ArrowIndicator>(),
        row<menus::MainMenu>(),
        row<menus::ConfigMenu>(),
    };
    const auto found = rows.find(typeid(entity));
    if (found != rows.end()) found->second(m, entity);
}

void addBody(Mixer& m, const physics::PhysicsObject& body) {
    m.add(body.position, body.velocity, body.rotation, body.collided, body.isActive, body.type,
          body.hitLine, body.hitBox, static_cast<const Entity*>(body.collidedWith));
    for (const math::Point& vertex : body.vertices)
        m.add(vertex);
}

StatePart part(const Entity& entity) {
    Mixer m;
    m.add(entity.id, entity.dead);
    if (entity.graphics != nullptr) m.add(entity.graphics->enabled);
    if (entity.physics != nullptr) addBody(m, *entity.physics);
    addOwnState(m, entity);
    return {typeid(entity).name(), entity.id, m.result()};
}

StatePart score() {
    Mixer m;
    m.add(Marvo::Instance().score, Marvo::Instance().lives, Marvo::Instance().nextLife);
    return {"score and lives", 0, m.result()};
}

StatePart randomStream() {
    Mixer m;
    m.add(math::MTRand_int32::p);
    for (const unsigned long word : math::MTRand_int32::state)
        m.add(word);
    return {"random stream", 0, m.result()};
}

StatePart clock() {
    Mixer m;
    m.add(Timer::Instance().paused, Timer::Instance().getTicks());
    return {"clock", 0, m.result()};
}

/// Null in the menus, where it has nothing to do.
const physics::PhysicsProcessor* activePhysics() {
    for (const Component* component : Engine::Instance().components)
        if (const auto* const found = dynamic_cast<const physics::PhysicsProcessor*>(component))
            return found;
    return nullptr;
}

StatePart linesAndAim() {
    Mixer m;
    const physics::PhysicsProcessor* const physics = activePhysics();
    m.add(PointManager::Instance().getV("Player Location").value,
          physics != nullptr && physics->gameOverPending);
    if (physics != nullptr)
        for (const TrapLine* line : physics->lines)
            m.add(static_cast<const Entity*>(line));
    return {"list of lines", 0, m.result()};
}

} // namespace

std::vector<StatePart> stateParts() {
    std::vector<StatePart> parts = {score(), randomStream(), clock(), linesAndAim()};
    for (const auto& [id, entity] : Engine::Instance().entities)
        parts.push_back(part(*entity));
    return parts;
}

std::uint32_t combined(const std::vector<StatePart>& parts) {
    Mixer m;
    for (const StatePart& part : parts)
        m.add(part.hash);
    return m.result();
}

std::string className(const char* kind) {
    return boost::core::demangle(kind);
}

std::string describe(const StatePart& part) {
    if (part.id == 0) return part.kind;
    std::ostringstream out;
    out.precision(17);
    out << className(part.kind) << ' ' << part.id;
    const Entity* const entity = Engine::Instance().getEntity(part.id);
    if (entity == nullptr) return out.str();
    if (entity->dead) out << ", dead";
    if (entity->physics != nullptr)
        out << ", at " << entity->physics->position.x << ' ' << entity->physics->position.y;
    return out.str();
}

} // namespace quorva::headless
