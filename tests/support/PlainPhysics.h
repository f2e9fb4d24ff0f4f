#pragma once

#include "Framework/physics/PhysicsProcessor.h"

#include <vector>

namespace quorva::headless {
class HeadlessGame;
}

/// The rules of PhysicsProcessor::process as plain loops that repeat everything in every
/// sub-step: slow, but easy to verify. It works on a processor's bodies and lines in its place;
/// tests compare the results, benchmarks the times.
class PlainPhysics : public quorva::Component {
public:
    explicit PlainPhysics(quorva::physics::PhysicsProcessor& processor_) : processor(processor_) {}

    void tick(quorva::headless::HeadlessGame& run); ///< a whole tick of the game, by these loops

    void process() override;
    void update() override {}
    void addEntity(quorva::Entity* e) override { processor.addEntity(e); }
    void removeEntity(quorva::Entity* e) override { processor.removeEntity(e); }
    void removeAllEntities() override { processor.removeAllEntities(); }

    std::vector<quorva::physics::PhysicsProcessor::Square> squares; ///< of the last sub-step

private:
    quorva::physics::PhysicsProcessor& processor;
};
