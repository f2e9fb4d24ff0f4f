// The formulas that nothing calls yet; the others are seen at work on fields.

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
