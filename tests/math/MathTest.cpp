#include "Framework/Config.h"
#include "Framework/Primitives/Box.h"
#include "Framework/math/LineWidth.h"
#include "Framework/math/MTRand.h"
#include "Framework/math/Matrix.h"

#include <gtest/gtest.h>

using namespace quorva::math;

TEST(PointAndVector, MeasureAndNormaliseAlike) {
    const auto check = [](auto p) {
        EXPECT_EQ(p.dot({1, 10, 100}), 632.0);
        EXPECT_EQ(p.length(), 7.0);
        p.normalise();
        EXPECT_EQ(p, decltype(p)(2.0 / 7, 3.0 / 7, 6.0 / 7));
        p = decltype(p)();
        p.normalise();
        EXPECT_TRUE(std::isnan(p.x)) << "unchecked";
    };
    check(Point(2, 3, 6));
    check(Vector(2, 3, 6));
}

TEST(MTRand, GivesThePublishedWords) {
    MTRand_int32 random;
    random.seed(5489UL);
    EXPECT_EQ(random(), 3499211612UL);
    for (int i = 2; i < 10000; ++i)
        random();
    EXPECT_EQ(random(), 4123659995UL);

    const unsigned long key[] = {0x123, 0x234, 0x345, 0x456};
    random.seed(key, 4);
    for (const unsigned long word :
         {1067595299UL, 955945823UL, 477289528UL, 4107218783UL, 4228976476UL})
        EXPECT_EQ(random(), word);
}

TEST(MTRand, SharesOneStreamThatASecondObjectDoesNotSeedAgain) {
    MTRand_int32 one;
    one.seed(7UL);
    const unsigned long first = one();
    MTRand_int32 two;
    EXPECT_NE(two(), first);
    one.seed(7UL);
    EXPECT_EQ(two(), first);
    one.seed(nullptr, 3);
    one.seed(&first, 0);
    const double fraction = randomFraction(one);
    EXPECT_TRUE(fraction >= 0.0 && fraction < 1.0);
}

TEST(Quaternion, LeansTowardsATurnInsteadOfMultiplying) {
    Quaternion q;
    rotate(90, z_axis, q);
    double angle;
    Vector axis;
    q.getAngleAxis(angle, axis);
    EXPECT_NEAR(angle, 90, 1e-9); // from nothing it is the turn itself
    EXPECT_EQ(axis, z_axis);
    rotate(180, z_axis, q);
    q.getAngleAxis(angle, axis);
    EXPECT_NEAR(angle, 135, 1e-9) << "half way, and not the sum";
}

TEST(Quaternion, GivesAnAngleForEveryValue) {
    const struct {
        const char* what;
        Quaternion q;
        double angle;
        Vector axis;
    } cases[] = {
        {"all zero", {}, 0, x_axis},
        {"identity", {1, 0, 0, 0}, 0, x_axis},
        {"w a hair above 1", {1.0000000000000002, 0, 0, 1e-9}, 0, z_axis},
        {"w a hair below -1", {-1.0000000000000002, 0, 0, 1e-9}, 360, z_axis},
        {"half a turn about y", {0, 0, 2, 0}, 180, y_axis},
    };
    for (const auto& c : cases) {
        double angle = -1;
        Vector axis;
        c.q.getAngleAxis(angle, axis);
        EXPECT_NEAR(angle, c.angle, 1e-9) << c.what;
        EXPECT_EQ(axis, c.axis) << c.what;
    }
}

TEST(Matrix, RotatesAsARightHandDoes) {
    Matrix m;
    m.makeRotation(90, 0, 0, 5); // the axis is normalised
    EXPECT_EQ(m * Vector(1, 0, 0), Vector(0, 1, 0));
    m.makeRotation(90, 1, 0, 0);
    EXPECT_EQ(m * Vector(0, 1, 0), Vector(0, 0, 1));
    m.makeRotation(120, 1, 1, 1);
    EXPECT_EQ(m * Vector(1, 0, 0), Vector(0, 1, 0));
    EXPECT_NEAR(m.determinant(), 1, 1e-12);
    const Quaternion q = m.getQuaternion();
    EXPECT_NEAR(std::fabs(q.w), 0.5, 1e-12);
    EXPECT_NEAR(std::fabs(q.x), 0.5, 1e-12);
}

TEST(Box, RoundsInEveryCopy) {
    const quorva::primitives::Box box(0.1, 0.2, 0.3, 0.4);
    const quorva::primitives::Box copy = box;
    EXPECT_EQ(box.top, 0.1);
    EXPECT_EQ(copy.top, 0.1F);
    EXPECT_NE(copy.right, box.right);
}

TEST(LineWidth, FollowsTheScreenDownToAPixel) {
    auto& config = quorva::config::Config::Instance();
    const struct {
        const char* what;
        int screen;
        bool compatibility;
        double width;
        float scaled;
    } cases[] = {
        {"reference screen", 1280, true, 4, 4},
        {"half of it", 640, true, 4, 2},
        {"thin, kept at a pixel", 640, true, 1, 1},
        {"thin, as it is", 640, false, 1, 0.5F},
    };
    for (const auto& c : cases) {
        config.setScreenWidth(static_cast<unsigned short>(c.screen));
        config.setCompatibility(c.compatibility);
        config.setAntiAlias(!c.compatibility); // has no say in it
        config.activateConfig();
        EXPECT_EQ(lineWidthScale(c.width), c.scaled) << c.what;
    }
}
