#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Colour.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/MTRand.h"
#include "Framework/math/Quaternion.h"

#include <vector>

class GLine;

/// An effect that shows the player where something has happened: lines fly in, lengthwise like
/// spears, from a circle around a point, and fade out together.
class ConvergingLines : public quorva::Entity,
                        public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    void process() override; ///< moves and fades the lines; dead once they are invisible
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    std::vector<GLine*> lines;                       ///< the graphics own them
    quorva::math::Point centre;                      ///< of the circle
    std::vector<quorva::math::Quaternion> rotations; ///< one per line, as in the next three
    std::vector<double> angles;                      ///< degrees
    std::vector<quorva::math::Point> positions;
    std::vector<quorva::math::Vector> velocities; ///< world units per tick
    quorva::graphics::Colour colour;              ///< own copy: all lines fade together

protected:
    /// @param seeded   of the derived class: its first object seeds the random stream and sets this
    /// @param fadeStep alpha per tick
    ConvergingLines(bool& seeded, std::size_t count, const quorva::graphics::Colour& colour,
                    float fadeStep);

    /// Draws a random angle for line `i` and sets its turn and velocity by it.
    /// @return its start on the circle
    quorva::math::Point aim(std::size_t i);
    /// Makes line `i`, in a layer of its own, which follows positions[i] and rotations[i].
    /// @param halfLength world units
    void addLine(std::size_t i, double halfLength);

    static quorva::math::MTRand_int32 Rand;

private:
    float fadeStep;
};
