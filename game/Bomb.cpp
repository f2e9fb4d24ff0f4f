#include "game/Bomb.h"

#include "Framework/Engine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/BombIndicator.h"

using namespace quorva;

namespace {

constexpr std::uint16_t pulse_interval = 50; // ticks
constexpr std::uint16_t max_pulses = 3;

} // namespace

Bomb::Bomb(const math::Point& position, const char* colourName, const char* indicatorName_)
    : PowerUp(position), ticks(pulse_interval), colour(&ColourManager::Instance().getV(colourName)),
      indicatorName(indicatorName_) {
    build(position, *colour);
}

void Bomb::process() {
    if (--ticks != 0) return;
    if (++pulses > max_pulses) {
        dead = true;
        return;
    }
    Engine::Instance().createEntity<BombIndicator>(indicatorName, physics->position, colour);
    ticks = pulse_interval;
}
