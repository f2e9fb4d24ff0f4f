#include "Framework/Engine.h"

#include "Framework/Component.h"

#include <algorithm>

namespace quorva {

namespace {

/// Live entities are left to the end of the process: their destructors would reach for services
/// that are gone. Held here they stay reachable, and so are no leaks to a leak checker.
void keepUntilProcessEnds(EngineClass::Entities entities) {
    static std::vector<EngineClass::Entities>* const kept = new std::vector<EngineClass::Entities>;
    kept->push_back(std::move(entities));
}

} // namespace

EngineClass::~EngineClass() {
    closing = true;
    cleanupDeadEntities();
    if (!entities.empty()) keepUntilProcessEnds(std::move(entities));
}

unsigned long EngineClass::addEntity(Entity* e) {
    if (e == nullptr || e->id != 0) return 0;
    const unsigned long id = nextId++;
    entities.insert({id, e});
    for (std::size_t i = 0; i < components.size(); ++i)
        components[i]->addEntity(e);
    return id;
}

Entity* EngineClass::getEntity(unsigned long id) const {
    const auto found = entities.find(id);
    return found == entities.end() ? nullptr : found->second;
}

void EngineClass::delEntity(Entities::iterator node) {
    for (std::size_t i = 0; i < components.size(); ++i)
        components[i]->removeEntity(node->second);
    delete node->second;
}

bool EngineClass::isActive(const Component* c) const {
    return std::find(components.begin(), components.end(), c) != components.end();
}

void EngineClass::addComponent(Component* c) {
    if (c == nullptr || isActive(c)) return;
    components.push_back(c);
    for (const auto& [id, entity] : entities)
        c->addEntity(entity);
}

void EngineClass::delComponent(Component* c) {
    if (c == nullptr || !isActive(c)) return;
    c->removeAllEntities();
    components.erase(std::find(components.begin(), components.end(), c));
}

void EngineClass::process() {
    cleanupDeadEntities();
    runEntities(&Entity::process);
    runComponents(&Component::process);
}

void EngineClass::update() {
    runEntities(&Entity::update);
    runComponents(&Component::update);
}

void EngineClass::runEntities(void (Entity::*beat)()) {
    // An entity born during the sweep has the highest id, so the sweep still comes to it.
    for (const auto& [id, entity] : entities)
        (entity->*beat)();
}

void EngineClass::runComponents(void (Component::*beat)()) {
    // By position: a component may add and remove components, itself among them.
    const std::size_t bound = components.size();
    for (std::size_t i = 0; i < bound && i < components.size(); ++i)
        (components[i]->*beat)();
}

void EngineClass::cleanupDeadEntities() {
    for (auto node = entities.begin(); node != entities.end();) {
        if (!node->second->dead) {
            ++node;
            continue;
        }
        delEntity(node);
        node = entities.erase(node);
    }
}

} // namespace quorva
