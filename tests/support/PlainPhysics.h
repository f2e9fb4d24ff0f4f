#pragma once

#include "Framework/physics/PhysicsProcessor.h"

#include <vector>

/// The rules of PhysicsProcessor::process as plain loops that repeat everything in every
/// sub-step: slow, but easy to verify. It works on a processor's bodies and lines in its place;
/// tests compare the results, benchmarks the times.
class PlainPhysics {
public:
    using Pairs = std::vector<std::pair<quorva::Entity*, quorva::Entity*>>;

    explicit PlainPhysics(quorva::physics::PhysicsProcessor& processor_) : processor(processor_) {}

    void process();

    /// What is tested against each other, of these shapes, in this tick.
    Pairs pairs(quorva::physics::ShapeType first, quorva::physics::ShapeType second) const;
    std::vector<quorva::physics::PhysicsProcessor::Square> squares;

private:
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
