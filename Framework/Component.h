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

    virtual void addEntity(Entity*) {}
    virtual void removeEntity(Entity*) {}
    virtual void removeAllEntities() {}
};

} // namespace quorva
