#include "Framework/Graphics/LineWidth.h"
#include "Framework/math/MTRand.h"
#include "Framework/math/Matrix.h"
#include "tests/support/Settings.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace quorva::math;

TEST(Point, CalculatesAsTheVectorFromTheOrigin) {
    Point p = Point(1, 1, 3) * 2.0 - Vector(0, 1, 2);
    p += Vector(0, 2, 2);
    EXPECT_EQ(p.dot({1, 10, 100}), 632.0);
    p.normalise();
    EXPECT_EQ(p, Point(2.0 / 7, 3.0 / 7, 6.0 / 7));
}

TEST(MTRand, IsSeededByAKeyAsPublished) {
    MTRand_int32 random;
    const unsigned long key[] = {0x123, 0x234, 0x345, 0x456};
    random.seed(key, 4);
    random.seed(nullptr, 3); // neither changes the stream
    random.seed(key, 0);
    EXPECT_EQ(random(), 1067595299UL);
}

TEST(Quaternion, GivesAnAngleForEveryValue) {
    for (const auto& [w, expected] :
         {std::pair{1.0000000000000002, 0.0}, {-1.0000000000000002, 360.0}}) { // a hair beyond
        double angle = -1;
        Vector axis;
        Quaternion(w, 0, 0, 1e-9).getAngleAxis(angle, axis);
        EXPECT_NEAR(angle, expected, 1e-9);
        EXPECT_EQ(axis, z_axis);
    }
}

TEST(Matrix, KnowsItsRotation) {
    for (const Vector& v : {Vector(3, 2, 1), Vector(2, 3, 1), Vector(1, 2, 3)}) {
        for (const double angle : {60.0, 180.0}) {
            Matrix m;
            m.makeRotation(angle, v.x, v.y, v.z);
            const Quaternion q = m.getQuaternion();
            const double half = angle / 2 * pi / 180, share = std::sin(half) / v.length();
            EXPECT_NEAR(q.w, std::cos(half), 1e-9);
            EXPECT_EQ(Vector(q.x, q.y, q.z), v * share) << v.x << ' ' << v.y;
        }
    }
    Matrix x, y, z;
    x.makeRotation(30, 1, 0, 0);
    y.makeRotation(40, 0, 1, 0);
    z.makeRotation(50, 0, 0, 1);
    EXPECT_EQ((x * y * z).getEulerXYZ(), Vector(30, 40, 50));
}

TEST(Matrix, Calculates) {
    const Matrix a(2, 0, 1, 3, 1, 4, 0, 5, 0, 2, 6, 7, 1, 0, 0, 2);
    const Matrix b(1, 2, 3, 4, 0, 1, 5, 6, 7, 8, 0, 9, 3, 2, 1, 0);
    Matrix transposed = a;
    transposed.transpose();
    std::ostringstream out;
    out << a + b << a - b << a * b << 3.0 * a << transposed;
    EXPECT_EQ(out.str(), "3 2 4 7\n1 5 5 11\n7 10 6 16\n4 2 1 2\n"
                         "1 -2 -2 -1\n1 3 -5 -1\n-7 -6 6 -2\n-2 -2 -1 2\n"
                         "18 18 9 17\n16 16 28 28\n63 64 17 66\n7 6 5 4\n"
                         "6 0 3 9\n3 12 0 15\n0 6 18 21\n3 0 0 6\n"
                         "2 1 0 1\n0 4 2 0\n1 0 6 0\n3 5 7 2\n");
    EXPECT_EQ(a * Point(1, 2, 3), Point(8, 14, 29));
    EXPECT_EQ(a * Vector(1, 2, 3), Vector(5, 9, 22));
    EXPECT_EQ(a.determinant(), 46);
    Matrix scaled;
    EXPECT_TRUE(fastInverse(scaled, a));
    EXPECT_FALSE(inverse(scaled, Matrix(1, 2, 3, 4, 1, 2, 3, 4, 0, 0, 1, 0, 0, 0, 0, 1)));
    EXPECT_EQ(scaled * Vector(46, 0, 0), a * Vector(1, 0, 0)) << "the second left it alone";
}

TEST(LineWidth, GoesBelowAPixelOnlyWithoutCompatibility) {
    for (const bool compatible : {true, false}) {
        activate({{"ScreenWidth", 640}, {compatible ? "Compatibility" : "NoCompatibility", 0}});
        EXPECT_EQ(lineWidthScale(1), compatible ? 1.0F : 0.5F);
    }
}
