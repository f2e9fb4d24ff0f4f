#include "tools/math/HardCases.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace quorva::tools {

namespace {

constexpr int neighbours = 1 << 16;
constexpr int double_digits = 53, long_digits = 320;
constexpr int straight_digits = 18; ///< behind the last place: the function may bend in later ones

using Fixed = boost::multiprecision::int128_t; ///< whole, or of which `one` is 1
constexpr int fixed_digits = 52;               ///< of a double, and products of two have room
const Fixed one = Fixed(1) << fixed_digits;

/// The smallest n at least 0 with low <= n * step mod modulus <= high; -1 if there is none.
Fixed firstWithin(Fixed step, Fixed modulus, Fixed low, Fixed high) {
    if (low == 0) return 0;
    if (step == 0) return -1;
    const Fixed steps = (low + step - 1) / step;
    if (steps * step <= high) return steps;
    const Fixed rounds = firstWithin(modulus % step, step, Fixed((step - high % step) % step),
                                     Fixed((step - low % step) % step));
    return rounds < 0 ? rounds : Fixed((low + modulus * rounds + step - 1) / step);
}

double neighbour(double x, std::int64_t n) {
    std::int64_t bits = 0;
    std::memcpy(&bits, &x, sizeof bits);
    bits += n;
    std::memcpy(&x, &bits, sizeof bits);
    return x;
}

/// The function's size in units of the last place that its result has at x.
class Places {
public:
    Places(const tests::ElementaryFunction& function_, double x, double y_)
        : function(function_), y(y_) {
        mpfr_init2(value, long_digits);
        function.apply(value, x, y);
        exponent = mpfr_regular_p(value) != 0 ? mpfr_get_exp(value) : 0;
    }
    ~Places() { mpfr_clear(value); }
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

    /// What is behind the point, of which `one` is 1.
    Fixed fractionAt(double x) {
        compute(x);
        mpfr_frac(value, value, MPFR_RNDN);
        return toFixed();
    }

    /// The mean step from one neighbour to the next, modulo 1.
    Fixed step(double x) {
        compute(neighbour(x, neighbours));
        mpfr_t first;
        mpfr_init2(first, long_digits);
        mpfr_swap(first, value);
        compute(x);
        mpfr_sub(value, first, value, MPFR_RNDN);
        mpfr_clear(first);
        mpfr_div_si(value, value, neighbours, MPFR_RNDN);
        mpfr_frac(value, value, MPFR_RNDN);
        return (toFixed() + one) % one;
    }

    double fromMiddle(double x) {
        compute(x);
        mpfr_frac(value, value, MPFR_RNDN);
        mpfr_sub_d(value, value, 0.5, MPFR_RNDN);
        return std::fabs(mpfr_get_d(value, MPFR_RNDN));
    }

private:
    void compute(double x) {
        function.apply(value, x, y);
        mpfr_abs(value, value, MPFR_RNDN);
        mpfr_mul_2si(value, value, double_digits - exponent, MPFR_RNDN);
    }

    Fixed toFixed() {
        mpfr_mul_2si(value, value, fixed_digits, MPFR_RNDN);
        return static_cast<std::int64_t>(mpfr_get_d(value, MPFR_RNDN));
    }

    const tests::ElementaryFunction& function;
    double y;
    mpfr_t value;
    long exponent = 0;
};

} // namespace

HardCase hardestNear(const tests::ElementaryFunction& function, double x, double y) {
    Places places(function, x, y);
    HardCase hardest = {x, y, 1.0};
    const Fixed start = places.fractionAt(x), step = places.step(x);
    const Fixed line = (start + step * (neighbours / 2)) % one;
    const Fixed bend = (places.fractionAt(neighbour(x, neighbours / 2)) - line + one) % one;
    const Fixed allowed = Fixed(one >> straight_digits);
    if (bend > allowed && bend < one - allowed) return hardest;

    for (Fixed reach = one / neighbours; reach > one >> 24; reach /= 2) {
        const Fixed low = (one / 2 - reach - start + one) % one;
        if (low + 2 * reach >= one) continue;
        const Fixed n = firstWithin(step, one, low, Fixed(low + 2 * reach));
        if (n < 0 || n >= neighbours) break;
        const double found = neighbour(x, static_cast<std::int64_t>(n));
        const double distance = places.fromMiddle(found);
        if (distance < hardest.distance) hardest = {found, y, distance};
    }
    return hardest;
}

} // namespace quorva::tools
