#include "Framework/math/Elementary.h"
#include "Framework/math/ElementaryTables.h"
#include "tools/math/Reference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>

using namespace quorva;
using namespace quorva::tests;
using math::DoubleDouble;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double smallest = std::numeric_limits<double>::denorm_min();
constexpr double largest = std::numeric_limits<double>::max();
const double no_number = std::nan("");

/// A result, beside what MPFR says.
testing::AssertionResult isNearest(const ElementaryFunction& function, double result, double x,
                                   double y) {
    const double reference = function.reference(x, y);
    if (isSame(result, reference)) return testing::AssertionSuccess();
    char text[200];
    std::snprintf(text, sizeof text, "%s(%a, %a) = %a in place of %a", function.name, x, y, result,
                  reference);
    return testing::AssertionFailure() << text;
}

/// A number of MPFR's with twice as many digits as any constant here is used with.
struct Long {
    mpfr_t value;
    Long() { mpfr_init2(value, 2 * math::two_over_pi_bits); }
    ~Long() { mpfr_clear(value); }
    Long(const Long&) = delete;
    Long& operator=(const Long&) = delete;

    Long& ofPi(long factor, long divisor) {
        mpfr_const_pi(value, MPFR_RNDN);
        mpfr_mul_si(value, value, factor, MPFR_RNDN);
        mpfr_div_si(value, value, divisor, MPFR_RNDN);
        return *this;
    }

    /// Takes off the nearest double, which it gives.
    double takeDouble() {
        const double nearest = mpfr_get_d(value, MPFR_RNDN);
        mpfr_sub_d(value, value, nearest, MPFR_RNDN);
        return nearest;
    }
};

void expectPair(const DoubleDouble& pair, Long& expected, const char* what, int number = 0) {
    EXPECT_EQ(pair.high, expected.takeDouble()) << what << ' ' << number;
    EXPECT_EQ(pair.low, expected.takeDouble()) << what << ' ' << number;
}

} // namespace

TEST(Elementary, EveryConstantIsNearestToItsValue) {
    Long number;
    for (int i = 0; i <= math::sine_steps; ++i) {
        mpfr_sin(number.value, number.ofPi(i, 2L * math::sine_steps).value, MPFR_RNDN);
        expectPair(math::sines[i], number, "sine", i);
    }
    for (int i = 0; i <= math::tangent_steps; ++i) {
        mpfr_set_d(number.value, static_cast<double>(i) / math::tangent_steps, MPFR_RNDN);
        mpfr_atan(number.value, number.value, MPFR_RNDN);
        expectPair(math::arctangents[i], number, "arctangent", i);
    }
    expectPair(math::half_pi, number.ofPi(1, 2), "pi / 2");
    expectPair(math::whole_pi, number.ofPi(1, 1), "pi");
    for (const auto& [pair, divisor] :
         {std::pair{math::minus_sixth, -6}, {math::minus_third, -3}}) {
        mpfr_set_si(number.value, 1, MPFR_RNDN);
        mpfr_div_si(number.value, number.value, divisor, MPFR_RNDN);
        expectPair(pair, number, "1 by", divisor);
    }

    number.ofPi(1, 2L * math::sine_steps);
    for (const double piece : math::step_pieces)
        mpfr_sub_d(number.value, number.value, piece, MPFR_RNDN);
    EXPECT_LE(std::fabs(mpfr_get_d(number.value, MPFR_RNDN)), 0x1p-125) << "pi / 128";
    for (const double piece : {math::step_pieces[0], math::step_pieces[1]})
        EXPECT_EQ(std::remainder(piece, std::ldexp(1.0, std::ilogb(piece) - 32)), 0.0);

    Long digits;
    mpfr_set_str(digits.value, math::two_over_pi_digits, 16, MPFR_RNDN);
    mpfr_ui_div(number.value, 2, number.ofPi(1, 1).value, MPFR_RNDN);
    mpfr_mul_2si(number.value, number.value, math::two_over_pi_bits, MPFR_RNDN);
    mpfr_trunc(number.value, number.value);
    EXPECT_EQ(mpfr_cmp(number.value, digits.value), 0) << "2 / pi";
}

TEST(Elementary, IsTheNearestDoubleToTheValue) {
    constexpr int count = 8000; // each
    std::mt19937_64 random(2026);
    for (const ElementaryFunction& function : elementary_functions) {
        for (int i = 0; i < 2 * count; ++i) {
            const bool inPlay = i < count;
            const double x = inPlay ? within(function.range, random) : anyDouble(random);
            const double y = inPlay ? within(function.range, random) : anyDouble(random);
            ASSERT_TRUE(isNearest(function, function.own(x, y), x, y));
        }
        // What small arguments leave to the series, and where one way gives over to another.
        for (int exponent = -60; exponent <= 20; ++exponent)
            for (const double factor : {-1.0, 0.7, 1.0, 1.0 + 0x1p-52}) {
                const double x = std::ldexp(factor, exponent);
                ASSERT_TRUE(isNearest(function, function.own(x, 1.0), x, 1.0));
            }
    }
}

TEST(Elementary, RoundsTheHardestCasesByTheExactWay) {
    std::ifstream file(KOV_SOURCE_DIR "/tests/math/hard_cases.txt");
    std::string name, x, y;
    double distance = 1.0;
    int cases = 0;
    while (file >> name >> x >> y >> distance) {
        for (const ElementaryFunction& function : elementary_functions) {
            if (function.name != name) continue;
            const double first = std::strtod(x.c_str(), nullptr);
            const double second = std::strtod(y.c_str(), nullptr);
            EXPECT_TRUE(isNearest(function, function.own(first, second), first, second));
            EXPECT_TRUE(isNearest(function, function.exact(first, second), first, second));
            EXPECT_LT(distance, 0x1p-28) << "no other way than the exact one tells it";
            ++cases;
        }
    }
    EXPECT_EQ(cases, 24);
}

TEST(Elementary, ExactWaysAreRightEverywhere) {
    constexpr int count = 200; // each
    std::mt19937_64 random(7);
    for (const ElementaryFunction& function : elementary_functions) {
        for (int i = 0; i < count;) {
            const double x = i % 2 == 0 ? within(function.range, random) : anyDouble(random);
            const double y = i % 2 == 0 ? within(function.range, random) : anyDouble(random);
            if (!std::isfinite(y) || !std::isfinite(function.reference(x, 1.0))) continue;
            ASSERT_TRUE(isNearest(function, function.exact(x, y), x, y));
            ++i;
        }
    }
}

TEST(Elementary, KnowsTheEndsOfTheNumbers) {
    const double special[] = {0.0,      smallest, 3 * smallest, 1.0,     2.0,      0x1p-1022,
                              0x1p-400, 0x1p400,  0x1p401,      largest, infinity, no_number};
    for (const ElementaryFunction& function : elementary_functions)
        for (const double x : special)
            for (const double y : special)
                for (const double sign : {1.0, -1.0}) {
                    EXPECT_TRUE(isNearest(function, function.own(x, sign * y), x, sign * y));
                    EXPECT_TRUE(isNearest(function, function.own(-x, sign * y), -x, sign * y));
                }
}

TEST(Elementary, TakesAQuotientInTheMiddleAsALittleLess) {
    const auto& atan2 = elementary_functions[3];
    for (int odd = 1; odd < 200; odd += 2)
        for (const double x : {2.0, 2.0 - 0x1p-52, 6.0, 0x1p400}) {
            const double y = odd * (x / 2.0) * smallest;
            EXPECT_TRUE(isNearest(atan2, math::atan2(y, x), y, x));
        }
}
