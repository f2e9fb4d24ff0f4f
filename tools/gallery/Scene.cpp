#include "tools/gallery/Scene.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/BombIndicator.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/PlayerCharacter.h"
#include "game/PowerUpLines.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"
#include "game/SquareIndicator.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"
#include "game/TriangleExplodeLine.h"

#include <algorithm>
#include <cmath>

using namespace quorva;

namespace gallery {

namespace {

bool inView(const Entity& entity) {
    const auto& camera = graphics::Camera::Instance();
    const math::Point& p = entity.physics->position;
    return std::fabs(p.x) < camera.right && std::fabs(p.y) < camera.top;
}

template <class T>
const T* as(const Entity* entity) {
    return dynamic_cast<const T*>(entity);
}

} // namespace

Scene::Scene(const GameBase& game) {
    if (game.level == nullptr) return;
    tick = game.level->tickCount;
    const PlayerCharacter& player = *game.level->player;
    deathTicks = player.deathTicks;
    playerHigh = player.physics->position.y > graphics::Camera::Instance().top - 3.2;
    playerVisible = deathTicks == 0 && (!player.invulnerable || player.graphics->enabled);
    for (const auto& [id, e] : Engine::Instance().entities) {
        if (const auto* const triangle = as<Triangle>(e); triangle != nullptr && inView(*e)) {
            ++triangles;
            if (triangle->stuckTicks > 0) ++stuck;
        }
        lines += as<TrapLine>(e) != nullptr;
        splinters += as<TriangleExplodeLine>(e) != nullptr && inView(*e);
        linePowerUps += as<PupLine>(e) != nullptr;
        cooldownPowerUps += as<PupCooldown>(e) != nullptr;
        clearBombs += as<BombClear>(e) != nullptr;
        immuneBombs += as<BombImmune>(e) != nullptr;
        if (const auto* const burst = as<PowerUpLines>(e)) rays += int(burst->rays.size());
        if (const auto* const effect = as<SquareIndicator>(e))
            square = std::max(square, effect->colour.alpha());
        if (const auto* const effect = as<BombIndicator>(e))
            pulse = std::max(pulse, effect->colour.alpha());
    }
}

} // namespace gallery
