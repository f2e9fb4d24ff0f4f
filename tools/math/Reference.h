#pragma once

#include <mpfr.h>

#include <random>

namespace quorva::tests {

/// An elementary function of the game beside the same one of MPFR, which rounds correctly.
/// Functions of one argument ignore the second.
struct ElementaryFunction {
    const char* name;
    double (*own)(double x, double y);
    double (*exact)(double x, double y);               ///< by the exact way alone
    int (*apply)(mpfr_ptr result, double x, double y); ///< @return the sign of its error
    double range; ///< of the arguments in play: at most so far from 0

    double reference(double x, double y) const; ///< rounded once, to subnormal numbers too
};

constexpr int elementary_count = 6;
extern const ElementaryFunction elementary_functions[elementary_count];

/// Whether two results are the same, zeros of different sign told apart, all not-a-numbers alike.
bool isSame(double a, double b);

double within(double range, std::mt19937_64& random);
double anyDouble(std::mt19937_64& random); ///< of all bit patterns

} // namespace quorva::tests
