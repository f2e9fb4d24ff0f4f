#include "Framework/math/Elementary.h"

#include "Framework/math/ElementaryExact.h"
#include "Framework/math/ElementaryTables.h"

#include <cmath>
#include <limits>

// A fast way in double-double gives each value with an error of at most 2^-74 of it, and a test by
// that bound sends the one argument in a million whose rounding it leaves open to the exact way.
// In front of it is a quick way, whose bound of 2^-61 decides 99 of a hundred.
// What is here is addition, subtraction, multiplication, division and square root alone, which
// IEEE 754 defines to the last bit.

namespace quorva::math {

namespace {

/// Below it sin x, atan x and asin x are nearest to x, and cos x to 1.
constexpr double tiny = 0x1p-27;
constexpr double wide = 0x1p14;     ///< radians; up to it, a whole number of steps has 20 bits
constexpr double far_off = 0x1p400; ///< the fast way takes what lies between it and 1 / far_off
constexpr double round_to_whole = 0x1.8p52; ///< added and taken off again, leaves no fraction

constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

constexpr double relative_error = 0x1p-74, quick_error = 0x1p-61;
constexpr double reduction_error = 0x1p-104; ///< radians

/// Whether all that lies within an error of a value has one nearest double, and which. No value
/// that comes here lies in the middle between two: all are transcendental (Lindemann 1882). Ziv
/// 1991, ACM TOMS 17(3).
bool isDecided(const DoubleDouble& value, double error, double& nearest) {
    nearest = value.high + (value.low - error);
    return nearest == value.high + (value.low + error);
}

/// The double nearest to a value; what the exact way gives where the error leaves it open.
template <class Exact>
double rounded(const DoubleDouble& value, double error, Exact exact) {
    double nearest = 0.0;
    return isDecided(value, error, nearest) ? nearest : exact();
}

double withSign(double size, double sign) {
    return std::copysign(size, sign);
}

// Sine and cosine.
//
// x = k pi/128 + u with |u| <= pi/256 < 2^-6.3, so that with the sine S and the cosine C of the
// whole steps, from a table, sin x = S + (S (cos u - 1) + C sin u).
//
// Errors: u is off by at most 2^20 * 2^-125 from the pieces of pi/128, and as much from rounding
// the third product, so by less than 2^-104. Both series begin in double-double; their tails are
// doubles of at most 2^-32.3 (of sin u / u) and 2^-29.9 (of cos u), off by a few units of their
// last place, say 2^-51 of them; and what is cut off is below 2^-85. So sin u is off by 2^-82 of
// it and cos u by 2^-80. Where S isn't 0, the sum is at least S / 2, hence off by 2^-78 of it;
// where it is 0, the sum is sin u itself.
//
// The quick way takes the whole series in doubles, and C u alone exactly. cos u - 1 is at most
// 2^-13.7: it is off by 2^-51 of that, and 2^-66 are cut off; the four sums of what is below S are
// off by 2^-66 S each. With S / 2 for the sum, that makes less than 2^-61 of it. Its functions are
// inline: g++ would not put them together by itself, which costs two thirds more.

struct Reduced {
    unsigned long steps; ///< of pi / 128
    DoubleDouble u;      ///< radians, the rest
};

/// Of an angle from 0 to `wide`. Cody and Waite 1980, in three pieces.
inline Reduced reduce(double x) {
    const double k = (x * steps_per_radian + round_to_whole) - round_to_whole;
    const DoubleDouble first = exactSum(x - k * step_pieces[0], -(k * step_pieces[1]));
    return {static_cast<unsigned long>(k), first + -(k * step_pieces[2])};
}

/// sin(i pi / 128).
inline DoubleDouble sineOfSteps(unsigned long i) {
    const unsigned long index = i % sine_steps;
    const DoubleDouble& sine = i / sine_steps % 2 == 0 ? sines[index] : sines[sine_steps - index];
    return i / sine_steps % 4 < 2 ? sine : -sine;
}

/// What makes sin u of u, and cos u of 1.
struct Excess {
    double sine, cosine;
};

Excess quickExcess(double u) {
    const double z = u * u;
    return {u * z * (-1.0 / 6 + z * (1.0 / 120 + z * (-1.0 / 5040))),
            z * (-0.5 + z * (1.0 / 24 + z * (-1.0 / 720)))};
}

/// An angle, ready for its sine.
struct Angle {
    DoubleDouble sine, cosine; ///< S and C
    DoubleDouble u;
    Excess excess; ///< of u
};

inline Angle prepared(double x) {
    const Reduced reduced = reduce(x);
    return {sineOfSteps(reduced.steps), sineOfSteps(reduced.steps + sine_steps), reduced.u,
            quickExcess(reduced.u.high)};
}

/// The angle whose sine is the cosine of this one.
Angle quarterOn(const Angle& angle) {
    return {angle.cosine, -angle.sine, angle.u, angle.excess};
}

inline DoubleDouble quickSine(const Angle& x) {
    const DoubleDouble product = exactProduct(x.cosine.high, x.u.high);
    const DoubleDouble sum = exactSum(x.sine.high, product.high);
    const double rest = x.cosine.high * (x.excess.sine + x.u.low) + x.cosine.low * x.u.high;
    return {sum.high,
            sum.low + (product.low + (x.sine.low + (rest + x.sine.high * x.excess.cosine)))};
}

/// (sin u) / u - 1, from z = u^2.
DoubleDouble sineExcess(const DoubleDouble& z) {
    const double w = z.high;
    const double tail = w * w * (1.0 / 120 + w * (-1.0 / 5040 + w * (1.0 / 362880)));
    return z * minus_sixth + tail;
}

/// cos u - 1, from z = u^2.
DoubleDouble cosineExcess(const DoubleDouble& z) {
    const double w = z.high;
    const double tail = w * w * (1.0 / 24 + w * (-1.0 / 720 + w * (1.0 / 40320)));
    return DoubleDouble{-0.5 * z.high, -0.5 * z.low} + tail;
}

DoubleDouble carefulSine(const Angle& x) {
    const DoubleDouble z = x.u * x.u, sine = x.u + x.u * sineExcess(z);
    if (x.sine.high == 0.0) return x.cosine.high > 0.0 ? sine : -sine;
    return x.sine + (x.sine * cosineExcess(z) + x.cosine * sine);
}

double errorOf(const DoubleDouble& sine, double relative) {
    return relative * std::fabs(sine.high) + reduction_error;
}

template <class Exact>
inline double roundedSine(const Angle& x, Exact exact) {
    const DoubleDouble quick = quickSine(x);
    double nearest = 0.0;
    if (isDecided(quick, errorOf(quick, quick_error), nearest)) return nearest;
    const DoubleDouble careful = carefulSine(x);
    return rounded(careful, errorOf(careful, relative_error), exact);
}

inline double sineOf(const Angle& angle, double x) {
    return roundedSine(angle, [x] { return exact::sin(x); });
}

inline double cosineOf(const Angle& angle, double x) {
    return roundedSine(quarterOn(angle), [x] { return exact::cos(x); });
}

// Arctangents.
//
// Of a direction (x, y) with 0 <= y <= x, and c the multiple of 1/64 nearest to y / x:
// atan(y / x) = atan c + atan v, where v = (y - c x) / (x + c y) and |v| <= 2^-7.
//
// Errors: v is off by some 2^-100 of it, or of 1 where y - c x cancels and atan c is 2^-6 or more.
// The series of atan v begins in double-double; its tail is a double of at most 2^-30.3 of v, off
// by 2^-51 of itself; and what is cut off is below 2^-87 of v. So atan v is off by 2^-80 of it, and
// the sum, which is at least as large as atan v, by 2^-79 of itself. A difference from pi or pi / 2
// is larger than what is taken off.
//
// The quick way takes the whole series in doubles, at most 2^-15.5 of v and off by 2^-50 of that,
// and the quotient with a correction in doubles, off by 2^-100 as above: in all 2^-65 of the sum.

/// Of c, in 64ths.
double nearestStep(const DoubleDouble& y, const DoubleDouble& x) {
    return (y.high / x.high * tangent_steps + round_to_whole) - round_to_whole;
}

DoubleDouble quickLowDirection(const DoubleDouble& y, const DoubleDouble& x) {
    const double step = nearestStep(y, x), c = step / tangent_steps;
    const DoubleDouble cx = exactProduct(c, x.high), cy = exactProduct(c, y.high);
    const DoubleDouble top = exactSum(y.high, -cx.high);
    const double topRest = top.low + (y.low - c * x.low - cx.low);
    const DoubleDouble bottom = sumOfOrdered(x.high, cy.high);
    const double bottomRest = bottom.low + (x.low + c * y.low + cy.low);
    const double v = (top.high + topRest) / bottom.high;
    const DoubleDouble covered = exactProduct(v, bottom.high);
    const double vRest =
        ((top.high - covered.high) - covered.low + topRest - v * bottomRest) / bottom.high;
    const double z = v * v;
    const double excess = v * z * (-1.0 / 3 + z * (1.0 / 5 + z * (-1.0 / 7 + z * (1.0 / 9))));
    const DoubleDouble& whole = arctangents[static_cast<int>(step)];
    const DoubleDouble sum = exactSum(whole.high, v);
    return sumOfOrdered(sum.high, sum.low + (whole.low + (vRest + excess)));
}

/// (atan v) / v - 1, from z = v^2.
DoubleDouble arctangentExcess(const DoubleDouble& z) {
    const double w = z.high;
    const double tail = w * w * (1.0 / 5 + w * (-1.0 / 7 + w * (1.0 / 9 + w * (-1.0 / 11))));
    return z * minus_third + tail;
}

DoubleDouble carefulLowDirection(const DoubleDouble& y, const DoubleDouble& x) {
    const double step = nearestStep(y, x), c = step / tangent_steps;
    const DoubleDouble v = step == 0.0 ? y / x : (y - x * c) / (x + y * c);
    const DoubleDouble rest = v + v * arctangentExcess(v * v);
    return step == 0.0 ? rest : arctangents[static_cast<int>(step)] + rest;
}

/// Of (x, y), both at least 0 and not both 0, in [0, pi / 2]; or of (-x, y).
/// @param low gives atan(y / x) for 0 <= y <= x
template <class Low>
DoubleDouble direction(Low low, const DoubleDouble& y, const DoubleDouble& x, bool isMirrored) {
    const DoubleDouble acute = y.high <= x.high ? low(y, x) : half_pi - low(x, y);
    return isMirrored ? whole_pi - acute : acute;
}

/// The same, rounded.
template <class Exact>
double roundedDirection(const DoubleDouble& y, const DoubleDouble& x, bool isMirrored,
                        Exact exact) {
    const DoubleDouble quick = direction(quickLowDirection, y, x, isMirrored);
    double nearest = 0.0;
    if (isDecided(quick, quick_error * quick.high, nearest)) return nearest;
    const DoubleDouble careful = direction(carefulLowDirection, y, x, isMirrored);
    return rounded(careful, relative_error * careful.high, exact);
}

/// sqrt(1 - x^2), for |x| < 1.
DoubleDouble otherLeg(double x) {
    return squareRoot(exactSum(1.0, -x) * exactSum(1.0, x));
}

bool isModerate(double size) {
    return size > 1.0 / far_off && size < far_off;
}

/// atan2 where either is 0 or infinite and neither is not-a-number; y at least 0.
double specialDirection(double y, double x) {
    if (y == 0.0) return std::signbit(x) ? whole_pi.high : 0.0;
    if (x == 0.0) return half_pi.high;
    if (!std::isinf(y)) return x > 0.0 ? 0.0 : whole_pi.high;
    constexpr double quarter_pi = half_pi.high / 2.0;
    constexpr double three_quarters_pi = 0x1.2d97c7f3321d2p1; // pi of three quarters, rounded once
    if (std::isinf(x)) return x > 0.0 ? quarter_pi : three_quarters_pi;
    return half_pi.high;
}

} // namespace

double sin(double x) {
    const double size = std::fabs(x);
    if (size < tiny) return x;
    if (!std::isfinite(x)) return x - x;
    const double sine = size > wide ? exact::sin(size) : sineOf(prepared(size), size);
    return x < 0.0 ? -sine : sine;
}

double cos(double x) {
    const double size = std::fabs(x);
    if (size < tiny) return 1.0;
    if (!std::isfinite(x)) return x - x;
    return size > wide ? exact::cos(size) : cosineOf(prepared(size), size);
}

SinCos sinCos(double x) {
    const double size = std::fabs(x);
    if (!(size >= tiny && size <= wide)) return {sin(x), cos(x)};
    const Angle angle = prepared(size);
    const double sine = sineOf(angle, size);
    return {x < 0.0 ? -sine : sine, cosineOf(angle, size)};
}

double atan2(double y, double x) {
    if (std::isnan(x) || std::isnan(y)) return x + y;
    const double height = std::fabs(y), width = std::fabs(x);
    if (height == 0.0 || width == 0.0 || std::isinf(y) || std::isinf(x))
        return withSign(specialDirection(height, x), y);
    const auto exactly = [height, x] { return exact::direction(height, x); };
    if (!isModerate(height) || !isModerate(width)) return withSign(exactly(), y);
    return withSign(roundedDirection({height}, {width}, x < 0.0, exactly), y);
}

double atan(double x) {
    if (std::fabs(x) < tiny) return x;
    return atan2(x, 1.0);
}

double asin(double x) {
    const double size = std::fabs(x);
    if (size < tiny) return x;
    if (!(size < 1.0)) return size == 1.0 ? withSign(half_pi.high, x) : no_number;
    const auto exactly = [size] { return exact::asin(size); };
    return withSign(roundedDirection({size}, otherLeg(size), false, exactly), x);
}

double acos(double x) {
    if (!(std::fabs(x) < 1.0)) {
        if (x == 1.0) return 0.0;
        return x == -1.0 ? whole_pi.high : no_number;
    }
    if (x == 0.0) return half_pi.high;
    return roundedDirection(otherLeg(x), {std::fabs(x)}, x < 0.0, [x] { return exact::acos(x); });
}

} // namespace quorva::math
