#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Colour.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/MTRand.h"
#include "Framework/math/Quaternion.h"

#include <vector>

class GLine;

/// An effect that tells the player what has just happened: lines fly in, lengthwise like spears,
/// from a circle around a point, and fade out together.
class ConvergingLines : public quorva::Entity,
                        public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    void process() override; ///< moves and fades; dead once nothing can be seen
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    std::vector<GLine*> lines;                       ///< the graphics own them
    quorva::math::Point centre;                      ///< of the circle
    std::vector<quorva::math::Quaternion> rotations; ///< one per line, as the following
    std::vector<double> angles;                      ///< degrees
    std::vector<quorva::math::Point> positions;
    std::vector<quorva::math::Vector> velocities; ///< world units per tick
    quorva::graphics::Colour colour;              ///< own copy: all lines fade together

protected:
    /// @param seeded   whether the first of the class has seeded the random stream
    /// @param fadeStep alpha per tick
    ConvergingLines(bool& seeded, std::size_t count, const quorva::graphics::Colour& colour,
                    float fadeStep);

    /// Draws the angle of line `i` and sets its turn and velocity.
    /// @return its start on the circle
    quorva::math::Point aim(std::size_t i);
    /// A layer of its own for line `i`.
    /// @param halfLength world units
    void addLine(std::size_t i, double halfLength);

    static quorva::math::MTRand_int32 Rand;

private:
    float fadeStep;
};
