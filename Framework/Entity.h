#pragma once

#include <cstdint>

namespace quorva {

namespace graphics {
class GraphicObject;
}
namespace physics {
class PhysicsObject;
}

/// Anything that exists in the game for a while: the player, a triangle, a menu, the level.
/// The engine owns every registered entity; to end one, set `dead`.
class Entity {
public:
    Entity();
    virtual ~Entity(); ///< frees `graphics` and `physics`
    Entity(const Entity&) = delete;
    Entity& operator=(const Entity&) = delete;

    virtual void process() = 0; ///< every tick
    virtual void update() = 0;  ///< every pass of the main loop, paused or not

    /// What the entity looks like; made, and empty, on first use.
    graphics::GraphicObject* getGraphics();
    void createGraphicObjectIfNoneExist(); ///< the same, without a result

    unsigned long id = 0;                        ///< the engine's key; 0 until registered
    graphics::GraphicObject* graphics = nullptr; ///< owned, may be null
    physics::PhysicsObject* physics = nullptr;   ///< owned, may be null
    bool dead = false;                           ///< the engine deletes it at the next tick
    bool visible = true;         ///< a menu takes keys only while set; nothing clears it
    std::uint32_t creationTicks; ///< ms of game time; nothing reads it
};

} // namespace quorva
