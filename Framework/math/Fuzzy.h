#pragma once

#include <algorithm>
#include <cmath>

namespace quorva::math {

/// Two doubles closer than this share of their size count as the same.
constexpr double fuzzy_tolerance = 0.000001;

/// Whether |a - b| is at most the tolerance times the largest of 1, |a| and |b|.
/// False for not-a-number.
inline bool fuzzyEqual(double a, double b) {
    const double size = std::max({1.0, std::fabs(a), std::fabs(b)});
    return std::fabs(a - b) <= fuzzy_tolerance * size;
}

/// Whether |d| is at most the tolerance.
inline bool fuzzyZero(double d) {
    const double size = std::fabs(d);
    return size <= (size > 1.0 ? size * fuzzy_tolerance : fuzzy_tolerance);
}

} // namespace quorva::math
