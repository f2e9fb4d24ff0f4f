// What no tick of play shows: ends that come from outside, and what nothing calls yet.

#include "tests/support/FieldTest.h"

#include "Framework/physics/Geometry.h"
#include "game/PupLine.h"
#include "tests/support/Settings.h"

using namespace quorva;
using math::Point;
using math::Vector;

using CollisionTest = FieldTest;

TEST_F(CollisionTest, ForgetsWhatTheEngineDeletes) {
    EngineClass& engine = Engine::Instance();
    auto* const pup = engine.createEntity<PupLine>("Line", Point(5, 5, 0));
    body(player).collidedWith = pup;
    TrapLine* const line = across(1, -5, 5);
    line->bullet = engine.createEntity<Bullet>("Bullet", Point(), Vector());
    Triangle* const triangle = layAt(8, 8);
    pup->dead = line->bullet->dead = true;
    engine.cleanupDeadEntities();
    EXPECT_EQ(body(player).collidedWith, nullptr);
    EXPECT_EQ(line->bullet, nullptr);
    line->dead = true; // not by its own end
    engine.cleanupDeadEntities();
    EXPECT_TRUE(physics->lines.empty());
    EXPECT_TRUE(body(triangle).lines.empty());
}

TEST_F(CollisionTest, StepsAsOftenAsTheSettingSays) {
    activate({{"CollisionAccuracy", 37}});
    EXPECT_EQ(physics::PhysicsProcessor(Vector()).stepCount, 37);
}

TEST_F(CollisionTest, RunsWhatAControllerAsksFor) {
    Triangle* const triangle = layAt(5, 5);
    body(triangle).velocity = Vector(1, 1, 0);
    body(triangle).booleanResult = true;
    messages::PhysicsController message;
    message.resetVelocities = message.enable = message.runTests = true;
    publish(message);
    EXPECT_EQ(body(triangle).velocity, math::zero_vector);
    EXPECT_FALSE(body(triangle).booleanResult);
    EXPECT_TRUE(physics->enabled);
    physics->doGravity();
    EXPECT_DOUBLE_EQ(body(triangle).velocity.y, -6.0 / 30.0);
}

TEST(Geometry, KnowsSidesAndShares) {
    EXPECT_EQ(physics::getSide(Point(1, 2, 0), Point(4, 3, 0), Point(2, 5, 0)), -8.0);
    const struct {
        Point a, b, c;
    } planes[] = {{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}},  // its normal is nearest to x
                  {{3, 0, 0}, {0, 1, 0}, {0, 0, 2}},  // to y
                  {{2, 0, 0}, {0, 3, 0}, {0, 0, 1}}}; // to z
    for (const auto& [a, b, c] : planes) {
        double u, v, w;
        physics::Barycentric(a, b, c, Point(0.2 * a.x, 0.3 * b.y, 0.5 * c.z), u, v, w);
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
        EXPECT_EQ(physics::getCollisionCorrectionVector(c.a, c.b, work), c.correction) << c.a.x;
        EXPECT_EQ(work, c.work) << c.a.x;
    }
}
