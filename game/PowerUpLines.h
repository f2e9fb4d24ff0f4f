#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Colour.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Quaternion.h"

#include <vector>

class GLine;

/// One ray of a burst.
struct ParticleLine {
    GLine* line = nullptr; ///< the graphics own it
    double angle = 0.0;    ///< degrees
    double length = 0.0;   ///< world units
    double growth = 0.0;   ///< world units per tick
};

/// The burst of rays under a power-up: it grows while the power-up lies there, then spins and
/// fades, the faster the more rays it has.
class PowerUpLines : public quorva::Entity,
                     public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    /// @param colour  copied
    /// @param reverse spins in the negative direction
    PowerUpLines(const quorva::math::Point& position, const quorva::graphics::Colour* colour,
                 bool reverse);

    void process() override;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    void cleanUp() { cleaningUp = true; } ///< from now on it spins and fades

    static double pupzindex; ///< depth of the newest burst: each is drawn at its own

    std::vector<ParticleLine> rays;  ///< at most 100
    quorva::graphics::Colour colour; ///< own copy: it fades
    bool cleaningUp = false;         ///< the power-up has gone
    double spinAngle = 0.0;          ///< degrees
    double spinSpeed = 0.0;          ///< degrees per tick
    quorva::math::Quaternion rotation;
    bool reverse;

private:
    void grow();
    void addRay();
    void spin();
    void fade();
};
