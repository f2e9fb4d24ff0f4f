#include "tools/gallery/Scene.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/PlayerCharacter.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"

#include <cmath>

using namespace quorva;

namespace gallery {

namespace {

constexpr double display_reach = 3.2; ///< of the display and of the cube's arrows, world units

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
    const PlayerCharacter& player = *game.level->player;
    deathTicks = player.deathTicks;
    playerHigh = player.physics->position.y > graphics::Camera::Instance().top - display_reach;
    playerVisible = deathTicks == 0 && (!player.invulnerable || player.graphics->enabled);
    for (const auto& [id, e] : Engine::Instance().entities) {
        if (const auto* const triangle = as<Triangle>(e); triangle != nullptr && inView(*e)) {
            ++triangles;
            if (triangle->stuckTicks > 0) ++stuck;
        }
        lines += as<TrapLine>(e) != nullptr;
    }
}

} // namespace gallery
