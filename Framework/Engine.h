#pragma once

#include "Framework/Entity.h"
#include "Framework/Singleton.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace quorva {

class Component;

/// Owns every live entity and runs entities and components in their fixed order, which is part
/// of the game: entities by rising id, then active components in the order of their addition.
class EngineClass {
public:
    EngineClass() = default;
    /// Deletes the entities flagged dead. The others end with the process, undestroyed.
    ~EngineClass();
    EngineClass(const EngineClass&) = delete;
    EngineClass& operator=(const EngineClass&) = delete;

    /// Takes ownership of `e` and announces it to the active components, which see it with id 0:
    /// the caller writes the returned id into it afterwards.
    /// @return its id, from 1 on; 0, without effect, for null or an entity that has an id already
    unsigned long addEntity(Entity* e);

    /// Makes an entity and registers it. `name` is dropped: it is for the reader of the call.
    template <class T, class... Args>
    T* createEntity(const std::string& name, Args... args);

    /// The registered entity with this id; null if there is none (any more).
    Entity* getEntity(unsigned long id) const;

    /// Appends `c` to the active components and announces every present entity to it. No effect
    /// for null or an active component.
    void addComponent(Component* c);
    /// Takes `c` out. No effect for null or a component that isn't active.
    void delComponent(Component* c);

    void process();             ///< one tick: deletion of the dead, entities, components
    void update();              ///< one pass of the main loop: entities, components
    void cleanupDeadEntities(); ///< deletes those flagged dead, by rising id

    /// True while the engine is being destroyed at exit: create nothing then, as the services
    /// that it would need may be gone.
    bool isClosing() const { return closing; }

    using Entities = std::map<unsigned long, Entity*>;

    Entities entities;                  ///< owned, freed by delEntity alone
    unsigned long nextId = 1;           ///< only ever grows
    std::vector<Component*> components; ///< the active ones, not owned

private:
    void delEntity(Entities::iterator node); ///< the caller erases the node
    bool isActive(const Component* c) const;
    void runEntities(void (Entity::*beat)());
    void runComponents(void (Component::*beat)());

    bool closing = false;
};

using Engine = DefaultSingleton<EngineClass>;

template <class T, class... Args>
// NOLINTNEXTLINE(performance-unnecessary-value-param): some are moved on
T* EngineClass::createEntity(const std::string&, Args... args) {
    T* const entity = new T(std::move(args)...);
    entity->id = addEntity(entity);
    return entity;
}

} // namespace quorva
