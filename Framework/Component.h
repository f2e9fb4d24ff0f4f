#pragma once

#include <boost/noncopyable.hpp>

namespace quorva {

class Entity;

/// A service that acts on all entities: renderer, physics, input, audio. The engine calls the
/// active ones, in the order of their addition; GameBase owns them.
class Component : private boost::noncopyable {
public:
    virtual ~Component() = default;

    virtual void update() = 0;  ///< every pass of the main loop, paused or not
    virtual void process() = 0; ///< every tick

    virtual void addEntity(Entity*) {}    ///< it has come, or stood when this was activated
    virtual void removeEntity(Entity*) {} ///< the engine deletes it next
    virtual void removeAllEntities() {}   ///< this is no longer active
};

} // namespace quorva
