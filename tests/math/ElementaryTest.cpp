#include "Framework/math/Elementary.h"
#include "Framework/math/ElementaryTables.h"
#include "tools/math/Reference.h"

#include <boost/multiprecision/cpp_int.hpp>
#include <boost/multiprecision/mpfr.hpp>
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

/// With twice as many digits as any constant here is used with.
using Long = boost::multiprecision::number<boost::multiprecision::mpfr_float_backend<1300>>;

void expectPair(const DoubleDouble& pair, const Long& expected, const char* what, int number = 0) {
    const auto high = expected.convert_to<double>();
    EXPECT_EQ(pair.high, high) << what << ' ' << number;
    EXPECT_EQ(pair.low, Long(expected - high).convert_to<double>()) << what << ' ' << number;
}

} // namespace

TEST(Elementary, EveryConstantIsNearestToItsValue) {
    const Long pi = 4 * atan(Long(1));
    for (int i = 0; i <= math::sine_steps; ++i)
        expectPair(math::sines[i], sin(i * pi / (2 * math::sine_steps)), "sine", i);
    for (int i = 0; i <= math::tangent_steps; ++i)
        expectPair(math::arctangents[i], atan(Long(i) / math::tangent_steps), "arctangent", i);
    expectPair(math::half_pi, pi / 2, "pi / 2");
    expectPair(math::whole_pi, pi, "pi");
    expectPair(math::minus_sixth, Long(-1) / 6, "-1 / 6");
    expectPair(math::minus_third, Long(-1) / 3, "-1 / 3");

    Long rest = pi / (2 * math::sine_steps);
    for (const double piece : math::step_pieces)
        rest -= piece;
    EXPECT_LE(std::fabs(rest.convert_to<double>()), 0x1p-125) << "pi / 128";
    for (const double piece : {math::step_pieces[0], math::step_pieces[1]})
        EXPECT_EQ(std::remainder(piece, std::ldexp(1.0, std::ilogb(piece) - 32)), 0.0);

    using Whole = boost::multiprecision::cpp_int;
    EXPECT_EQ(Whole(Long(ldexp(2 / pi, math::two_over_pi_bits))), Whole(math::two_over_pi_digits));
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
            // The exact way, which takes its time, and knows no end of the numbers.
            if (i % 40 == 0 && std::isfinite(y) && std::isfinite(function.reference(x, 1.0))) {
                ASSERT_TRUE(isNearest(function, function.exact(x, y), x, y));
            }
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

TEST(Elementary, KnowsTheEndsOfTheNumbersAndTakesAQuotientInTheMiddleAsALittleLess) {
    const double special[] = {0.0,      smallest, 3 * smallest, 1.0,     2.0,      0x1p-1022,
                              0x1p-400, 0x1p400,  0x1p401,      largest, infinity, no_number};
    for (const ElementaryFunction& function : elementary_functions)
        for (const double x : special)
            for (const double y : special)
                for (const double sign : {1.0, -1.0}) {
                    EXPECT_TRUE(isNearest(function, function.own(x, sign * y), x, sign * y));
                    EXPECT_TRUE(isNearest(function, function.own(-x, sign * y), -x, sign * y));
                }
    for (int odd = 1; odd < 200; odd += 2)
        for (const double x : {2.0, 2.0 - 0x1p-52, 6.0, 0x1p400}) {
            const double y = odd * (x / 2.0) * smallest;
            EXPECT_TRUE(isNearest(elementary_functions[3], math::atan2(y, x), y, x));
        }
}
