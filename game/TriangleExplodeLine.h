#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Quaternion.h"

class GLine;

/// A side of a dead triangle's outline that flies off, spinning. Decoration alone.
class TriangleExplodeLine : public quorva::Entity,
                            public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    /// @param start, end relative to `position`
    /// @param drift direction, of length 1; if it is not-a-number, only EndLevel ends the line
    TriangleExplodeLine(const quorva::math::Point& position, const quorva::math::Point& start,
                        const quorva::math::Point& end, const quorva::math::Vector& drift);

    void process() override;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    quorva::math::Point start, end; ///< relative to the position
    quorva::math::Vector drift;     ///< acceleration, world units per tick and tick
    GLine* line;                    ///< the graphics own it
    double spinAngle = 0.0;         ///< degrees, ever growing
    quorva::math::Quaternion rotation;

private:
    bool isFarOutside() const;
};
