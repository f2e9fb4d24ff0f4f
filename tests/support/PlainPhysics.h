#pragma once

#include "Framework/physics/PhysicsProcessor.h"

#include <vector>

namespace quorva::headless {
class HeadlessGame;
}

/// The rules of PhysicsProcessor::process as plain loops that repeat everything in every
/// sub-step: slow, but easy to verify. It works on a processor's bodies and lines in its place;
/// tests compare the results, benchmarks the times. The lines that are fired while it lives also
/// grow, age and fade by loops of their own.
class PlainPhysics : public quorva::Component, public quorva::MessageInterface<PhysicsLineMessage> {
public:
    using Pairs = std::vector<std::pair<quorva::Entity*, quorva::Entity*>>;

    explicit PlainPhysics(quorva::physics::PhysicsProcessor& processor);
    ~PlainPhysics() override;

    void tick(quorva::headless::HeadlessGame& run); ///< a whole tick of the game, by these loops

    void process() override;
    void update() override {}
    void addEntity(quorva::Entity* e) override { processor.addEntity(e); }
    void removeEntity(quorva::Entity* e) override { processor.removeEntity(e); }
    void removeAllEntities() override { processor.removeAllEntities(); }
    void receiveMessage(const PhysicsLineMessage* m) override;

    /// What is tested against each other, of these shapes, in this tick.
    Pairs pairs(quorva::physics::ShapeType first, quorva::physics::ShapeType second) const;
    std::vector<quorva::physics::PhysicsProcessor::Square> squares;

private:
    bool isStopped(const quorva::physics::PhysicsObject& body) const;
    void takeOutlines() const;
    void move() const;
    void testBoxesAndBoxes() const;
    void testBoxesAndTriangles() const;
    void testTrianglesAndPoints() const;
    void retireLines() const;
    void constructSquares();
    void testBoxes() const;

    quorva::physics::PhysicsProcessor& processor;
    std::vector<quorva::physics::Participant> participants; ///< in this tick
};
