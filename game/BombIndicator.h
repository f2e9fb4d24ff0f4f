#pragma once

#include "game/ConvergingLines.h"

/// The pulse of a bomb: twenty lines that fly in and vanish where it lies.
class BombIndicator : public ConvergingLines {
public:
    /// @param colour copied
    BombIndicator(const quorva::math::Point& position, const quorva::graphics::Colour* colour);

    static bool seeded; ///< the first indicator of this kind has seeded the random stream
};
