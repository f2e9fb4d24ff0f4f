#pragma once

#include "Framework/Primitives/Box.h"
#include "game/ConvergingLines.h"

/// The sign that a rectangle has paid out: five lines, as long as it is wide, pass through its
/// middle.
class SquareIndicator : public ConvergingLines {
public:
    explicit SquareIndicator(const quorva::primitives::Box& box);

    static bool seeded; ///< the first indicator of this kind has seeded the random stream
};
