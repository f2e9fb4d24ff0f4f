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

/// Owns the video mode and draws every frame: one flat list of the layers of all entities. Those
/// of equal order are drawn as they arrived, so that a state of the game has one picture.
class Renderer : public Component, public MessageInterface<messages::ResetVideo> {
public:
    /// Opens the window. Ends the process with exit(-1) if no video mode can be had.
    explicit Renderer(physics::PhysicsProcessor* physics);

    void update() override;    ///< one frame, paused or not
    void process() override {} ///< nothing is drawn at a tick
    /// Takes its layers that are active just now. A layer that is made or activated later is
    /// never drawn; a layer that is deactivated later is hidden.
    void addEntity(Entity* entity) override;
    void removeEntity(Entity* entity) override; ///< before it is deleted: the engine sees to it
    void removeAllEntities() override;

    /// Opens the video mode anew and loads the lasting resources again.
    void receiveMessage(const messages::ResetVideo* message) override;

    /// Opens the window at the configured size, or at 800 by 600, and sets all state of GL that
    /// no shape sets for itself: what gives the game its look.
    void setupVideo();

    /// Asked in each frame whether its things are drawn; if not, it stays empty. Null: always. For
    /// programs that play a game without showing all of it.
    static bool (*drawsFrame)();

    std::vector<RenderableThing*> renderables; ///< in last frame's order; entities own them
    physics::PhysicsProcessor* physics;        ///< null when no level runs; not owned; unread
};

} // namespace quorva::graphics
