// The formulas that nothing calls yet, and of the others what seldom happens on a field.

#include "Framework/physics/Geometry.h"

#include <gtest/gtest.h>

using namespace quorva::physics;
using quorva::math::Point;
using quorva::math::Vector;

TEST(Geometry, KnowsSidesAndShares) {
    EXPECT_EQ(getSide(Point(1, 2, 0), Point(4, 3, 0), Point(2, 5, 0)), -8.0);
    const struct {
        Point a, b, c;
    } planes[] = {{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}},  // its normal is nearest to x
                  {{3, 0, 0}, {0, 1, 0}, {0, 0, 2}},  // to y
                  {{2, 0, 0}, {0, 3, 0}, {0, 0, 1}}}; // to z
    for (const auto& [a, b, c] : planes) {
        const Point p(0.2 * a.x, 0.3 * b.y, 0.5 * c.z);
        double u, v, w;
        Barycentric(a, b, c, p, u, v, w);
        EXPECT_EQ(Vector(u, v, w), Vector(0.2, 0.3, 0.5)) << a.x;
    }
}

TEST(Geometry, CorrectsAlongTheMinorAxisUnlessThatIsNothing) {
    const struct {
        Vector a, b, work, correction;
    } cases[] = {
        {{3, 2, 0}, {4, 5, 6}, {0, 2, 0}, {0, 5, 0}},  {{2, 3, 0}, {4, 5, 6}, {2, 0, 0}, {4, 0, 0}},
        {{-2, 2, 0}, {4, 5, 6}, {0, 2, 0}, {0, 5, 0}}, {{3, 2, 0}, {4, 0, 6}, {3, 0, 0}, {4, 0, 0}},
        {{2, 3, 0}, {0, 5, 6}, {0, 3, 0}, {0, 5, 0}},  {{3, 0, 2}, {4, 5, 6}, {0, 0, 2}, {0, 0, 6}},
        {{0, 3, 2}, {4, 5, 6}, {0, 0, 2}, {0, 0, 6}},
    };
    for (const auto& c : cases) {
        Vector work;
        EXPECT_EQ(getCollisionCorrectionVector(c.a, c.b, work), c.correction) << c.a.x;
        EXPECT_EQ(work, c.work) << c.a.x;
    }
}

TEST(Geometry, TouchingEndsMeet) {
    const Point left(-5, 2, 0), right(5, 2, 0), low(3, -5, 0), high(3, 5, 0);
    const struct {
        const char* what;
        Point a1, a2, b1, b2;
        bool meets;
    } cases[] = {
        {"upright edge at the end of a line across", left, right, {5, 0, 0}, {5, 4, 0}, true},
        {"at its start", right, left, {-5, 0, 0}, {-5, 4, 0}, true},
        {"past its end", left, right, {5.001, 0, 0}, {5.001, 4, 0}, false},
        {"sloping edge at the end of an upright line", low, high, {0, 2, 0}, {6, 8, 0}, true},
        {"past its end", low, high, {0, 2.01, 0}, {6, 8.01, 0}, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LinesInterect(c.a1, c.a2, c.b1, c.b2), c.meets) << c.what;
}
