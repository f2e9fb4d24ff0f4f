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
#include "game/AboutMenu.h"
#include "game/ArrowIndicator.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/BombIndicator.h"
#include "game/Border.h"
#include "game/Bullet.h"
#include "game/GameLevel.h"
#include "game/GameOverScreen.h"
#include "game/HelpMenu.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/PowerUpLines.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"
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

/// Makes 32 bits of values in their order.
class Hasher {
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

void addState(Hasher& h, const PlayerCharacter& p) {
    h.add(p.moveUp, p.moveDown, p.moveLeft, p.moveRight, p.invulnerable, p.invulnerableTicks,
          p.blinkTicks, p.lineLength, p.cooldown, p.pickupLock, p.deathTicks, p.linePups,
          p.cooldownPups);
    for (const std::uint16_t ticks : p.fireTimers)
        h.add(ticks);
}

void addState(Hasher& h, const GameLevel& l) {
    h.add(l.spawnBonus, l.tickCount, l.levelNumber, l.trianglesSincePowerUp, l.ticksSinceBomb,
          l.deathSpawnPenalty, l.deathSizePenalty, l.ticksSinceSpawn);
}

void addState(Hasher& h, const Bullet& b) {
    h.add(b.fakeKilled, b.hitTriangle, b.spinAngle, b.rotation, b.dying, b.colour.alpha());
}

void addState(Hasher& h, const TrapLine& l) {
    h.add(l.start, l.end, static_cast<const Entity*>(l.bullet), l.lifeTicks, l.horizontal,
          l.fakeDone, l.solid, l.blinkTicks, l.fading, l.finished);
    if (l.fading) h.add(l.fadeScale, l.fadeStep);
}

void addState(Hasher& h, const Triangle& t) {
    h.add(t.speed, t.size, t.angle, t.explodes, t.modelB, t.modelC, t.state, t.step, t.baseOffset,
          t.noseStep, t.noseOffset, t.pauseTicks, t.noseTarget, t.contractTicks, t.noseTicks,
          t.stuckTicks);
}

void addState(Hasher& h, const TriangleExplodeLine& l) {
    h.add(l.start, l.end, l.drift, l.spinAngle, l.rotation);
}

void addState(Hasher& h, const PowerUpLines& burst) {
    h.add(burst.colour.alpha(), burst.cleaningUp, burst.spinAngle, burst.spinSpeed, burst.rotation);
    for (const ParticleLine& ray : burst.rays)
        h.add(ray.angle, ray.length, ray.growth);
}

void addState(Hasher& h, const Bomb& b) {
    h.add(b.ticks, b.pulses);
}

void addState(Hasher& h, const ConvergingLines& lines) {
    h.add(lines.colour.alpha());
    for (const math::Point& position : lines.positions)
        h.add(position);
}

void addState(Hasher& h, const ArrowIndicator& a) {
    h.add(a.firing, a.restoring, a.restoreTicks);
    for (unsigned int i = 0; i < ArrowIndicator::chevron_count; ++i)
        h.add(a.outward[i], a.inward[i]);
}

void addState(Hasher& h, const menus::MainMenu& menu) {
    h.add(menu.shown, menu.selection);
}

void addState(Hasher& h, const menus::ConfigMenu& menu) {
    h.add(menu.selection, menu.width, menu.height, menu.fullScreen, menu.fxVolume, menu.musicVolume,
          menu.collisionAccuracy, menu.saveCPU);
}

using AddState = void (*)(Hasher&, const Entity&);

/// As which class an entity of class T gives its state.
template <class T, class As = T>
std::pair<const std::type_index, AddState> row() {
    return {typeid(T), [](Hasher& h, const Entity& e) { addState(h, static_cast<const As&>(e)); }};
}

/// The row of a class whose state is its body and its look alone, or that play doesn't depend on.
template <class T>
std::pair<const std::type_index, AddState> bodyAlone() {
    return {typeid(T), [](Hasher&, const Entity&) {}};
}

/// The state beside the body. Every class that the game makes entities of has its row.
void addOwnState(Hasher& h, const Entity& entity) {
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
        bodyAlone<PupLine>(),
        bodyAlone<PupCooldown>(),
        bodyAlone<Border>(),
        bodyAlone<HelpMenu>(),
        bodyAlone<AboutMenu>(),
        bodyAlone<GameOverScreen>(),
    };
    const auto found = rows.find(typeid(entity));
    if (found != rows.end()) found->second(h, entity);
}

void addBody(Hasher& h, const physics::PhysicsObject& body) {
    h.add(body.position, body.velocity, body.rotation, body.collided, body.isActive, body.type,
          body.hitLine, body.hitBox, static_cast<const Entity*>(body.collidedWith));
    for (const math::Point& vertex : body.vertices)
        h.add(vertex);
}

StatePart part(const Entity& entity) {
    Hasher h;
    h.add(entity.id, entity.dead);
    if (entity.graphics != nullptr) h.add(entity.graphics->enabled);
    if (entity.physics != nullptr) addBody(h, *entity.physics);
    addOwnState(h, entity);
    return {typeid(entity).name(), entity.id, h.result()};
}

StatePart score() {
    Hasher h;
    h.add(Marvo::Instance().score, Marvo::Instance().lives, Marvo::Instance().nextLife);
    return {"score and lives", 0, h.result()};
}

StatePart randomStream() {
    Hasher h;
    h.add(math::MTRand_int32::p);
    for (const unsigned long word : math::MTRand_int32::state)
        h.add(word);
    return {"random stream", 0, h.result()};
}

StatePart clock() {
    Hasher h;
    h.add(Timer::Instance().paused, Timer::Instance().getTicks());
    return {"clock", 0, h.result()};
}

/// Null in the menus, where it has nothing to do.
const physics::PhysicsProcessor* activePhysics() {
    for (const Component* component : Engine::Instance().components)
        if (const auto* const found = dynamic_cast<const physics::PhysicsProcessor*>(component))
            return found;
    return nullptr;
}

StatePart linesAndAim() {
    Hasher h;
    const physics::PhysicsProcessor* const physics = activePhysics();
    h.add(PointManager::Instance().getV("Player Location").value,
          physics != nullptr && physics->gameOverPending);
    if (physics != nullptr)
        for (const TrapLine* line : physics->lines)
            h.add(static_cast<const Entity*>(line));
    return {"list of lines", 0, h.result()};
}

} // namespace

std::vector<StatePart> stateParts() {
    std::vector<StatePart> parts = {score(), randomStream(), clock(), linesAndAim()};
    for (const auto& [id, entity] : Engine::Instance().entities)
        parts.push_back(part(*entity));
    return parts;
}

std::uint32_t combined(const std::vector<StatePart>& parts) {
    Hasher h;
    for (const StatePart& part : parts)
        h.add(part.hash);
    return h.result();
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
