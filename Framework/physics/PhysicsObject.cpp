#include "Framework/physics/PhysicsObject.h"

namespace quorva::physics {

PhysicsObject::PhysicsObject(const math::Point& position_, bool collidable_, bool isStatic_,
                             bool hasGravity_, bool isActive_)
    : position(position_), collidable(collidable_), isStatic(isStatic_), hasGravity(hasGravity_),
      isActive(isActive_) {}

} // namespace quorva::physics
