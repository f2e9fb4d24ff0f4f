#include "Framework/physics/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

using namespace quorva::physics;
using quorva::math::Point;
using quorva::math::Vector;

namespace {

const double nan_value = std::numeric_limits<double>::quiet_NaN();

Point at(double x, double y) {
    return {x, y, 0.0};
}

} // namespace

TEST(PointInTriangle, CountsEdgesInOneSenseOfRotationOnly) {
    const Point a = at(0, 0), b = at(4, 0), c = at(0, 4);
    const struct {
        const char* what;
        Point p;
        bool counterClockwise, clockwise;
    } cases[] = {
        {"inside", at(1, 1), true, true},
        {"outside", at(3, 3), false, false},
        {"on an edge", at(2, 0), true, false},
        {"on a corner", at(0, 0), true, false},
        {"not a number", at(nan_value, 1), false, false},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(pointInTriangle(row.p, a, b, c), row.counterClockwise) << row.what;
        EXPECT_EQ(pointInTriangle(row.p, a, c, b), row.clockwise) << row.what;
    }
    EXPECT_TRUE(pointInTriangle(at(2, 2), at(0, 0), at(1, 1), at(3, 3))) << "degenerate";
}

TEST(LinesInterect, MeetsEdgesAsTheGameAlwaysHas) {
    const Point left = at(-5, 2), right = at(5, 2), low = at(3, -5), high = at(3, 5);
    const struct {
        const char* what;
        Point a1, a2, b1, b2;
        bool meets;
    } cases[] = {
        {"horizontal, sloping edge across", left, right, at(0, 0), at(2, 4), true},
        {"horizontal, edge above", left, right, at(0, 3), at(2, 4), false},
        {"horizontal, edge ends on it", left, right, at(0, 0), at(0, 2), true},
        {"horizontal, vertical edge at its end", left, right, at(5, 0), at(5, 4), true},
        {"horizontal, vertical edge past its end", left, right, at(5.001, 0), at(5.001, 4), false},
        {"vertical, sloping edge across", low, high, at(0, 0), at(6, 6), true},
        {"vertical, sloping edge beyond its end", low, high, at(0, 4), at(6, 8), false},
        {"vertical, edge to its right", low, high, at(4, 0), at(6, 2), false},
        {"vertical, flat edge across, y not the line's x", low, high, at(0, 1), at(6, 1), false},
        {"vertical, flat edge far off, y the line's x", low, high, at(40, 3), at(50, 3), true},
        {"vertical, upright edge counts as flat", low, high, at(9, 3), at(9, 8), true},
        {"line drawn the other way", right, left, at(0, 0), at(2, 4), true},
        {"not a number", left, right, at(nan_value, nan_value), at(2, 4), false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LinesInterect(c.a1, c.a2, c.b1, c.b2), c.meets) << c.what;
}
