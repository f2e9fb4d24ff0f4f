#pragma once

#include <cmath>

namespace quorva::math {

/// A number as the unevaluated sum of two doubles, of which `high` is the nearest to it: some 106
/// bits, in plain arithmetic. Neither overflow nor underflow is looked after: the numbers here lie
/// between 2^-900 and 2^900. With u = 2^-53, each operation's relative error is bounded as in
/// Joldes, Muller and Popescu 2017, ACM TOMS 44(2), which none comes near to.
struct DoubleDouble {
    double high = 0.0;
    double low = 0.0;

    DoubleDouble operator-() const { return {-high, -low}; }
};

/// The sum of two doubles of which the first is the larger one, exactly. Dekker 1971.
inline DoubleDouble sumOfOrdered(double a, double b) {
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

/// The sum of any two doubles, exactly. Knuth, TAOCP 2, 4.2.2.
inline DoubleDouble exactSum(double a, double b) {
    const double sum = a + b, fromB = sum - a, fromA = sum - fromB;
    return {sum, (a - fromA) + (b - fromB)};
}

/// A double as two of at most 26 bits, whose products are exact. Veltkamp; Dekker 1971.
inline DoubleDouble halves(double a) {
    constexpr double splitter = 134217729.0; // 2^27 + 1
    const double scaled = splitter * a, high = scaled - (scaled - a);
    return {high, a - high};
}

/// The product of two doubles, exactly. Dekker 1971.
inline DoubleDouble exactProduct(double a, double b) {
    const double product = a * b;
    const DoubleDouble x = halves(a), y = halves(b);
    const double low =
        ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low;
    return {product, low};
}

/// Relative error at most 2 u^2, if there is no cancellation.
inline DoubleDouble operator+(const DoubleDouble& a, double b) {
    const DoubleDouble sum = exactSum(a.high, b);
    return sumOfOrdered(sum.high, a.low + sum.low);
}

/// Relative error at most 3 u^2 + 13 u^3, whatever cancels.
inline DoubleDouble operator+(const DoubleDouble& a, const DoubleDouble& b) {
    const DoubleDouble highs = exactSum(a.high, b.high), lows = exactSum(a.low, b.low);
    const DoubleDouble sum = sumOfOrdered(highs.high, highs.low + lows.high);
    return sumOfOrdered(sum.high, lows.low + sum.low);
}

inline DoubleDouble operator-(const DoubleDouble& a, const DoubleDouble& b) {
    return a + -b;
}

/// Relative error at most 3 u^2.
inline DoubleDouble operator*(const DoubleDouble& a, double b) {
    const DoubleDouble product = exactProduct(a.high, b);
    return sumOfOrdered(product.high, a.low * b + product.low);
}

/// Relative error at most 7 u^2.
inline DoubleDouble operator*(const DoubleDouble& a, const DoubleDouble& b) {
    const DoubleDouble product = exactProduct(a.high, b.high);
    return sumOfOrdered(product.high, product.low + (a.high * b.low + a.low * b.high));
}

/// Relative error at most 15 u^2 + 56 u^3.
inline DoubleDouble operator/(const DoubleDouble& a, const DoubleDouble& b) {
    const double quotient = a.high / b.high;
    const DoubleDouble covered = b * quotient;
    const double rest = (a.high - covered.high) + (a.low - covered.low);
    return sumOfOrdered(quotient, rest / b.high);
}

/// Of a number above 0. Relative error at most 4 u^2.
inline DoubleDouble squareRoot(const DoubleDouble& a) {
    const double root = std::sqrt(a.high);
    const DoubleDouble square = exactProduct(root, root);
    const double rest = (a.high - square.high) - square.low + a.low;
    return sumOfOrdered(root, rest / (2.0 * root));
}

} // namespace quorva::math
