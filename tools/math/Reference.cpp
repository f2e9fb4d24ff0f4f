#include "tools/math/Reference.h"

#include "Framework/math/Elementary.h"
#include "Framework/math/ElementaryExact.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace quorva::tests {

namespace {

constexpr int double_digits = std::numeric_limits<double>::digits;

class Number {
public:
    explicit Number(double x = 0.0) {
        mpfr_init2(value, double_digits);
        mpfr_set_d(value, x, MPFR_RNDN);
    }
    ~Number() { mpfr_clear(value); }
    Number(const Number&) = delete;
    Number& operator=(const Number&) = delete;
    operator mpfr_ptr() { return value; }

private:
    mpfr_t value;
};

template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)>
int apply(mpfr_ptr result, double x, double) {
    return function(result, Number(x), MPFR_RNDN);
}

int applyAtan2(mpfr_ptr result, double y, double x) {
    return mpfr_atan2(result, Number(y), Number(x), MPFR_RNDN);
}

using Unary = double (*)(double);

template <Unary function>
double ofOne(double x, double) {
    return function(x);
}

/// The exact ways leave signs to the fast ones.
double exactAsin(double x, double) {
    return std::copysign(math::exact::asin(std::fabs(x)), x);
}

double exactAtan2(double y, double x) {
    return std::copysign(math::exact::direction(std::fabs(y), x), y);
}

double exactAtan(double x, double) {
    return exactAtan2(x, 1.0);
}

constexpr double angles = 4000.0, coordinates = 2000.0;

} // namespace

const ElementaryFunction elementary_functions[elementary_count] = {
    {"sin", ofOne<math::sin>, ofOne<math::exact::sin>, apply<mpfr_sin>, angles},
    {"cos", ofOne<math::cos>, ofOne<math::exact::cos>, apply<mpfr_cos>, angles},
    {"atan", ofOne<math::atan>, exactAtan, apply<mpfr_atan>, coordinates},
    {"atan2", math::atan2, exactAtan2, applyAtan2, coordinates},
    {"acos", ofOne<math::acos>, ofOne<math::exact::acos>, apply<mpfr_acos>, 1.0},
    {"asin", ofOne<math::asin>, exactAsin, apply<mpfr_asin>, 1.0},
};

double ElementaryFunction::reference(double x, double y) const {
    mpfr_set_emin(std::numeric_limits<double>::min_exponent - double_digits + 1);
    mpfr_set_emax(std::numeric_limits<double>::max_exponent);
    Number result;
    const int error = mpfr_check_range(result, apply(result, x, y), MPFR_RNDN);
    mpfr_subnormalize(result, error, MPFR_RNDN);
    const double rounded = mpfr_get_d(result, MPFR_RNDN);
    mpfr_set_emin(mpfr_get_emin_min());
    mpfr_set_emax(mpfr_get_emax_max());
    return rounded;
}

bool isSame(double a, double b) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    return a == b && std::signbit(a) == std::signbit(b);
}

double within(double range, std::mt19937_64& random) {
    return std::uniform_real_distribution<double>(-range, range)(random);
}

double anyDouble(std::mt19937_64& random) {
    const std::uint64_t bits = random();
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

} // namespace quorva::tests
