#include "Framework/math/Elementary.h"

#include "Framework/math/ElementaryExact.h"
#include "Framework/math/ElementaryTables.h"

#include <cmath>

// A fast way in double-double gives each value with an error of at most 2^-74 of it, and a test by
// that bound sends the one argument in a million whose rounding it leaves open to the exact way.
// What is here is addition, subtraction, multiplication, division and square root alone, which
// IEEE 754 defines to the last bit.

namespace quorva::math {

namespace {

constexpr double tiny =
    0x1p-27;                    ///< below it, sin x, atan x and asin x are nearest to x, cos x to 1
constexpr double wide = 0x1p14; ///< radians; up to it, a whole number of steps has 20 bits
constexpr double far_off = 0x1p400; ///< the fast way takes what lies between it and 1 / far_off
constexpr double round_to_whole = 0x1.8p52; ///< added and taken off again, leaves no fraction

constexpr double relative_error = 0x1p-74;
constexpr double reduction_error = 0x1p-104; ///< radians

/// The double nearest to a value known to within an error, or what the exact way gives where two
/// doubles may be nearest. No value that comes here lies in the middle between two: all are
/// transcendental (Lindemann 1882). Ziv 1991, ACM TOMS 17(3).
template <class Exact>
double rounded(const DoubleDouble& value, double error, Exact exact) {
    const double nearest = value.high + (value.low - error);
    return nearest == value.high + (value.low + error) ? nearest : exact();
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

struct Reduced {
    long steps;     ///< of pi / 128
    DoubleDouble u; ///< radians, the rest
};

/// Of an angle from 0 to `wide`. Cody and Waite 1980, in three pieces.
Reduced reduce(double x) {
    const double k = (x * steps_per_radian + round_to_whole) - round_to_whole;
    const DoubleDouble first = exactSum(x - k * step_pieces[0], -(k * step_pieces[1]));
    return {static_cast<long>(k), first - exactProduct(k, step_pieces[2])};
}

/// sin(i pi / 128), i of any size.
DoubleDouble sineOfSteps(long i) {
    const long place = i % sine_steps;
    switch (i / sine_steps % 4) {
    case 0:
        return sines[place];
    case 1:
        return sines[sine_steps - place];
    case 2:
        return -sines[place];
    default:
        return -sines[sine_steps - place];
    }
}

/// sin(x + i pi / 128), i at least 0.
DoubleDouble sineFrom(const Reduced& x, long i) {
    const DoubleDouble s = sineOfSteps(x.steps + i), c = sineOfSteps(x.steps + i + sine_steps);
    const DoubleDouble z = x.u * x.u, sine = x.u + x.u * sineExcess(z);
    if (s.high == 0.0) return c.high > 0.0 ? sine : -sine;
    return s + (s * cosineExcess(z) + c * sine);
}

double errorOf(const DoubleDouble& sine) {
    return relative_error * std::fabs(sine.high) + reduction_error;
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

/// (atan v) / v - 1, from z = v^2.
DoubleDouble arctangentExcess(const DoubleDouble& z) {
    const double w = z.high;
    const double tail = w * w * (1.0 / 5 + w * (-1.0 / 7 + w * (1.0 / 9 + w * (-1.0 / 11))));
    return z * minus_third + tail;
}

/// atan(y / x), for 0 <= y <= x.
DoubleDouble lowDirection(const DoubleDouble& y, const DoubleDouble& x) {
    const auto step = static_cast<int>(y.high / x.high * tangent_steps + 0.5);
    const double c = static_cast<double>(step) / tangent_steps;
    const DoubleDouble v = step == 0 ? y / x : (y - x * c) / (x + y * c);
    const DoubleDouble rest = v + v * arctangentExcess(v * v);
    return step == 0 ? rest : arctangents[step] + rest;
}

/// Of (x, y), both at least 0 and not both 0, in [0, pi / 2].
DoubleDouble direction(const DoubleDouble& y, const DoubleDouble& x) {
    return y.high <= x.high ? lowDirection(y, x) : half_pi - lowDirection(x, y);
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
    if (size > wide) return exact::sin(x);
    const DoubleDouble value = sineFrom(reduce(size), 0);
    const double sine = rounded(value, errorOf(value), [size] { return exact::sin(size); });
    return x < 0.0 ? -sine : sine;
}

double cos(double x) {
    const double size = std::fabs(x);
    if (size < tiny) return 1.0;
    if (!std::isfinite(x)) return x - x;
    if (size > wide) return exact::cos(x);
    const DoubleDouble value = sineFrom(reduce(size), sine_steps);
    return rounded(value, errorOf(value), [size] { return exact::cos(size); });
}

double atan2(double y, double x) {
    if (std::isnan(x) || std::isnan(y)) return x + y;
    const double height = std::fabs(y), width = std::fabs(x);
    if (height == 0.0 || width == 0.0 || std::isinf(y) || std::isinf(x))
        return withSign(specialDirection(height, x), y);
    const auto exactly = [height, x] { return exact::direction(height, x); };
    if (!isModerate(height) || !isModerate(width)) return withSign(exactly(), y);
    const DoubleDouble acute = direction({height}, {width});
    const DoubleDouble value = x > 0.0 ? acute : whole_pi - acute;
    return withSign(rounded(value, relative_error * value.high, exactly), y);
}

double atan(double x) {
    if (std::fabs(x) < tiny) return x;
    return atan2(x, 1.0);
}

double asin(double x) {
    const double size = std::fabs(x);
    if (size < tiny) return x;
    if (!(size < 1.0)) return size == 1.0 ? withSign(half_pi.high, x) : (x - x) / 0.0;
    const DoubleDouble value = direction({size}, otherLeg(size));
    const auto exactly = [size] { return exact::asin(size); };
    return withSign(rounded(value, relative_error * value.high, exactly), x);
}

double acos(double x) {
    if (!(std::fabs(x) < 1.0)) {
        if (x == 1.0) return 0.0;
        return x == -1.0 ? whole_pi.high : (x - x) / 0.0;
    }
    if (x == 0.0) return half_pi.high;
    const DoubleDouble acute = direction(otherLeg(x), {std::fabs(x)});
    const DoubleDouble value = x > 0.0 ? acute : whole_pi - acute;
    return rounded(value, relative_error * value.high, [x] { return exact::acos(x); });
}

} // namespace quorva::math
