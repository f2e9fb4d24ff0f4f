#include "Framework/Entity.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Timer.h"
#include "Framework/physics/PhysicsObject.h"

namespace quorva {

Entity::Entity() : creationTicks(Timer::Instance().getTicks()) {}

Entity::~Entity() {
    delete graphics;
    delete physics;
}

graphics::GraphicObject* Entity::getGraphics() {
    createGraphicObjectIfNoneExist();
    return graphics;
}

void Entity::createGraphicObjectIfNoneExist() {
    if (graphics == nullptr) graphics = new graphics::GraphicObject;
}

} // namespace quorva
