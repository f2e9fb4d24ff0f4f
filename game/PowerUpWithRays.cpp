#include "game/PowerUpWithRays.h"

#include "Framework/Engine.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/PowerUpLines.h"

using namespace quorva;

PowerUpWithRays::PowerUpWithRays(const math::Point& position, const char* colourName, bool reverse)
    : PowerUp(position) {
    const graphics::Colour& colour = ColourManager::Instance().getV(colourName);
    build(position, colour);
    lines =
        Engine::Instance().createEntity<PowerUpLines>("PULs", physics->position, &colour, reverse);
    linesId = lines->id;
}

PowerUpWithRays::~PowerUpWithRays() {
    // At the end of a level the burst goes first, having the lower id.
    if (Engine::Instance().getEntity(linesId) != nullptr) lines->cleanUp();
}
