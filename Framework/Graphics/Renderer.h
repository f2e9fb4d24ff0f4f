#pragma once

#include "Framework/Component.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

#include <vector>

namespace quorva::physics {
class PhysicsProcessor;
}

namespace quorva::graphics {

class RenderableThing;

/// Drawing order: by layer, then by depth, both ascending.
struct RenderObjectSort {
    bool operator()(const RenderableThing* a, const RenderableThing* b) const;
};

/// Owns the video mode and draws every frame: one flat list of the layers of all entities.
class Renderer : public Component, public MessageInterface<messages::ResetVideo> {
public:
    /// Opens the window. Ends the process with exit(-1) if no video mode can be had.
    explicit Renderer(physics::PhysicsProcessor* physics);

    void update() override; ///< one frame
    void process() override {}
    void addEntity(Entity* entity) override; ///< takes its layers that are active just now
    void removeEntity(Entity* entity) override;
    void removeAllEntities() override;

    /// Opens the video mode anew and loads the lasting resources again.
    void receiveMessage(const messages::ResetVideo* message) override;

    void setupVideo();

    std::vector<RenderableThing*> renderables; ///< in last frame's order; entities own them
    physics::PhysicsProcessor* physics;        ///< null when no level runs; not owned, not read
};

} // namespace quorva::graphics
