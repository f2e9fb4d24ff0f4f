#pragma once

#include "tools/math/Reference.h"

namespace quorva::tools {

/// An argument whose result lies near the middle between two doubles.
struct HardCase {
    double x, y;
    double distance; ///< from the middle, in units of the result's last place
};

/// The hardest of 2^16 neighbouring arguments, from x on; y stays. A straight line stands for the
/// function there, and where it comes nearest to a middle is found as in Euclid's algorithm. Its
/// distance is 1 if the function bends too much there.
HardCase hardestNear(const tests::ElementaryFunction& function, double x, double y);

} // namespace quorva::tools
