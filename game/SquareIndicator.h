#pragma once

#include "Framework/Primitives/Box.h"
#include "game/ConvergingLines.h"

/// A rectangle has paid out: five lines as long as it is wide pass through its middle.
class SquareIndicator : public ConvergingLines {
public:
    explicit SquareIndicator(const quorva::primitives::Box& box);

    static bool seeded; ///< the first of the run has seeded the random stream
};
