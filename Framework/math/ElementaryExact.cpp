#include "Framework/math/ElementaryExact.h"

#include "Framework/math/ElementaryTables.h"

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace quorva::math::exact {

namespace {

namespace mp = boost::multiprecision;

/// A number of so many bits, whose exponent has room for any quotient of doubles.
template <unsigned Bits>
using Number =
    mp::number<mp::cpp_bin_float<Bits, mp::digit_base_2, void, std::int32_t>, mp::et_off>;

/// Of a quarter of a thousand bits, then of three: a sine or arcsine comes within some 2^-120 of
/// the middle between two doubles at its worst, and a direction, of all pairs of doubles, is
/// expected to come within 2^-190.
using Short = Number<256>;
using Long = Number<768>;

/// Each value here is off by less than this many units of its last place, as 2^bits: it takes less
/// than 300 operations.
constexpr int spare_bits = 16;

template <class N>
constexpr int bits_of = std::numeric_limits<N>::digits;

// Rounding.

constexpr int double_digits = std::numeric_limits<double>::digits;
constexpr int lowest_place = -1074;  ///< exponent of the smallest double
constexpr int lowest_normal = -1022; ///< exponent of the smallest one with all its digits

/// 2^exponent, for those of normal numbers.
double powerOfTwo(int exponent) {
    const std::uint64_t bits = static_cast<std::uint64_t>(exponent + 1023) << 52U;
    double power = 0.0;
    std::memcpy(&power, &bits, sizeof power);
    return power;
}

/// The double nearest to a number above 0, ties to even.
template <class N>
double nearestDouble(const N& number) {
    int exponent = 0;
    frexp(number, &exponent);
    const int place = std::max(exponent - double_digits, lowest_place);
    const N scaled = ldexp(number, -place);
    auto whole = scaled.template convert_to<std::uint64_t>();
    const N rest = scaled - whole;
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) ++whole;
    const auto digits = static_cast<double>(whole);
    if (place >= lowest_normal) return digits * powerOfTwo(place);
    return digits * powerOfTwo(lowest_normal) * powerOfTwo(place - lowest_normal);
}

/// @return false if a number so near to this one would be rounded to another double
template <class N>
bool tryToRound(const N& number, double& result) {
    const N error = ldexp(N(1), spare_bits - bits_of<N>);
    const N size = abs(number);
    const double least = nearestDouble<N>(size * (1 - error));
    result = std::copysign(least, number < 0 ? -1.0 : 1.0);
    return least == nearestDouble<N>(size * (1 + error));
}

/// The double nearest to what `compute` gives of the type of number that it is handed.
template <class Compute>
double rounded(Compute compute) {
    double result = 0.0;
    if (!tryToRound(compute(Short()), result)) tryToRound(compute(Long()), result);
    return result;
}

// Sine and cosine.

/// A whole number with room for the digits of 2 / pi and all of a double's places; no allocation.
constexpr unsigned whole_bits = 4096;
using Whole = mp::number<
    mp::cpp_int_backend<whole_bits, whole_bits, mp::signed_magnitude, mp::unchecked, void>,
    mp::et_off>;

const Whole& twoOverPi() {
    static const Whole digits(two_over_pi_digits);
    return digits;
}

template <class N>
const N& halfPi() {
    static const N value = ldexp(N(1), two_over_pi_bits) / N(twoOverPi());
    return value;
}

template <class N>
struct Reduced {
    unsigned quadrant;
    N rest; ///< radians, at most a quarter of pi
};

/// Of a finite number above 0. All bits of 2 / pi are multiplied that can reach the quadrant or the
/// rest: with an argument below 2^1024 what is cut off from them stays below 2^-1024, and no double
/// comes nearer to a multiple of pi / 2 than 2^-62. Payne and Hanek 1983.
template <class N>
Reduced<N> reduce(double x) {
    int exponent = 0;
    const Whole digits(
        ldexp(frexp(N(x), &exponent), double_digits).template convert_to<std::uint64_t>());
    const auto places = static_cast<unsigned>(two_over_pi_bits + double_digits - exponent);
    const Whole turns = digits * twoOverPi();
    const Whole whole = (turns + (Whole(1) << (places - 1))) >> places;
    const Whole rest = turns - (whole << places);
    return {static_cast<unsigned>(whole & 3U),
            ldexp(N(rest), -static_cast<int>(places)) * halfPi<N>()};
}

/// The Taylor series whose first term has the power n of x: n = 1 for the sine, 0 for the cosine.
template <class N>
N series(N term, const N& x, int n) {
    N sum = term;
    const N least = ldexp(abs(term), -bits_of<N>), square = x * x;
    for (; abs(term) > least; n += 2) {
        term *= -square / ((n + 1) * (n + 2));
        sum += term;
    }
    return sum;
}

/// sin(x + quarters pi / 2), for x above 0.
template <class N>
N sineFrom(double x, unsigned quarters) {
    const Reduced<N> reduced = reduce<N>(x);
    const unsigned quadrant = (reduced.quadrant + quarters) % 4;
    const N value = quadrant % 2 == 0 ? series<N>(reduced.rest, reduced.rest, 1)
                                      : series<N>(N(1), reduced.rest, 0);
    return quadrant < 2 ? value : N(-value);
}

// Arctangents.

/// Of 0 to 1: by atan t = 2 atan(t / (1 + sqrt(1 + t^2))) small enough for the series.
template <class N>
N lowArctangent(N t) {
    constexpr int halvings = 8;
    for (int i = 0; i < halvings; ++i)
        t /= 1 + sqrt(N(1 + t * t));
    N sum = t, power = t;
    const N least = ldexp(t, -bits_of<N>), square = t * t;
    for (int n = 3; abs(power) > least; n += 2) {
        power *= -square;
        sum += power / n;
    }
    return ldexp(sum, halvings);
}

/// Of (x, y), both above 0.
template <class N>
N acuteDirection(const N& y, const N& x) {
    return y <= x ? lowArctangent<N>(y / x) : N(halfPi<N>() - lowArctangent<N>(x / y));
}

/// Of a quotient so small that its arctangent is less than 2^-200 of it below it. The quotient can
/// lie in the very middle between two doubles (among the smallest, which have few digits); if it
/// doesn't, it is 2^-107 of itself away from it. So anything just below serves as well.
template <class N>
N tinyDirection(const N& quotient) {
    constexpr int just_below = -200;
    return quotient * (1 - ldexp(N(1), just_below));
}

template <class N>
N directionOf(double y, double x) {
    constexpr double smallest_curved = 0x1p-101;
    const N height = y, width = std::fabs(x), quotient = height / width;
    if (x > 0.0 && quotient < smallest_curved) return tinyDirection(quotient);
    const N acute = acuteDirection(height, width);
    return x > 0.0 ? acute : N(2 * halfPi<N>() - acute);
}

/// sqrt(1 - x^2).
template <class N>
N otherLeg(const N& x) {
    return sqrt(N((1 - x) * (1 + x)));
}

} // namespace

double sin(double x) {
    const double sine =
        rounded([x](auto type) { return sineFrom<decltype(type)>(std::fabs(x), 0); });
    return x < 0.0 ? -sine : sine;
}

double cos(double x) {
    return rounded([x](auto type) { return sineFrom<decltype(type)>(std::fabs(x), 1); });
}

double direction(double y, double x) {
    return rounded([y, x](auto type) { return directionOf<decltype(type)>(y, x); });
}

double asin(double x) {
    return rounded([x](auto type) {
        const decltype(type) number = x;
        return acuteDirection(number, otherLeg(number));
    });
}

double acos(double x) {
    return rounded([x](auto type) {
        using N = decltype(type);
        const N number = std::fabs(x), acute = acuteDirection(otherLeg(number), number);
        return x > 0.0 ? acute : N(2 * halfPi<N>() - acute);
    });
}

} // namespace quorva::math::exact
