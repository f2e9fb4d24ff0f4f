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

    /// Takes `e` over and shows it to the active components. The caller writes the id into `e`
    /// afterwards, so that the components see it with id 0.
    /// @return its id, from 1 on; 0 for null; an entity that has an id already is left alone
    unsigned long addEntity(Entity* e);

    /// Makes an entity and registers it. `name` is for the reader of the call alone.
    template <class T, class... Args>
    T* createEntity(const std::string& name, Args... args);

    /// The registered entity with this id; null if there is none, or none any more.
    Entity* getEntity(unsigned long id) const;

    /// Null, or a component that is active already: no effect. It sees all present entities.
    void addComponent(Component* c);
    /// Null, or a component that is not active: no effect.
    void delComponent(Component* c);

    void process(); ///< one tick: deletion of the dead, entities, components
    void update();  ///< one pass of the main loop: entities, components
    void cleanupDeadEntities();

    /// True while the engine goes, at process exit: nothing new may be made then, since the
    /// services that it would need have gone already.
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
T* EngineClass::createEntity(const std::string&, Args... args) {
    T* const entity = new T(std::move(args)...);
    entity->id = addEntity(entity);
    return entity;
}

} // namespace quorva
